#include "forms/forms.h"

namespace forms {

Forms::Forms(text::CharacterSet const& letters) : frmMain(letters), groups(letters)
{
    frmMain.window.caption = "Vexlo Instant Messaging";
    frmMain.allusers.multi_selection = true;
    frmMain.allusers.font_size = FrmMain::small_font;
    frmMain.Label5.visible = false;
    frmMain.Frame2.visible = false;
    frmMain.away.visible = false;
    frmMain.dissmissall.enabled = false;
    frmMain.recall.tool_tip = "Show the last message received";
    frmMain.options.tool_tip = "Change Options, Settings, View Logs";
    frmMain.autorespond.tool_tip = "Auto Respond";
    frmMain.autorespond.visible = false;
    frmMain.Label3.tool_tip = "Click to visit web site";
    frmMain.Label4.tool_tip = "Click to visit web site";
    frmMain.away.tool_tip = "Turn Auto Respond on or off";
    for (auto& button : frmMain.qb) {
        button.enabled = false;
    }
    for_each_popup([](Popup& window) {
        window.window.caption = "Vexlo Instant Messaging";
        window.Check1.visible = false;
        window.Command2.enabled = false;
        window.beensent.visible = false;
        for (auto& button : window.qb) {
            button.enabled = false;
        }
    });
    log.window.caption = "Vexlo IM Log";
    historyfrm.window.caption = "Vexlo History";
    historyfrm.ListView1.tool_tip = "Dbl click to Recall";
    historyfrm.autores.visible = false;
    for (auto* const option :
         {&historyfrm.ontop, &historyfrm.minmain, &historyfrm.anchor, &historyfrm.wasopen}) {
        option->visible = false; // The menu shows them.
    }
    historyfrm.autores.tool_tip = "Auto Respond is on";
    settings.window.caption = "Vexlo Instant Messaging - Settings";
    settings.autoreply.visible = false;
    fwdtofrm.window.caption = "Forward to";
    groups.window.caption = "Configure Groups";
}

} // namespace forms
