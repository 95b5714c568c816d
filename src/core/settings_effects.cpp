#include "core/settings_effects.h"

#include "text/numbers.h"

namespace core::settings_effects {

namespace {

constexpr std::size_t toggle_entry = 2;

} // namespace

void offer_auto_respond(forms::Forms& forms)
{
    bool const allowed = forms.settings.autoresmaster.on();
    forms.frmMain.away.visible = allowed;
    forms.frmMain.autorespond.visible = allowed;
    auto& toggle = forms.menuform.closepopups[toggle_entry];
    toggle.visible = allowed;
    toggle.enabled = allowed;
}

void use_message_font(forms::Forms& forms)
{
    int const size = text::leading_whole_number(forms.settings.msgfontsize.caption());
    if (size <= 0) {
        return;
    }
    forms.frmMain.messagetext.font_size = size;
    forms.for_each_popup([size](forms::Popup& popup) { popup.message.font_size = size; });
    forms.historyfrm.message.font_size = size;
    forms.frmMain.allusers.font_size = size;
    forms.frmMain.List1.font_size = size;
}

void use_list_font(forms::Forms& forms)
{
    auto& frmMain = forms.frmMain;
    frmMain.allusers.font_size = forms.settings.userlistfont.on() ? frmMain.messagetext.font_size
                                                                  : forms::FrmMain::small_font;
}

void use_enter_key(forms::Forms& forms)
{
    auto& frmMain = forms.frmMain;
    bool const show = !forms.settings.hidetip.on();
    frmMain.entlabel1.visible = show;
    frmMain.entlabel2.visible = show;
    frmMain.entersend.set(forms.settings.entersend.value());
    bool const enter_sends = frmMain.entersend.on();
    frmMain.entlabel1.set_caption(enter_sends ? "Press Enter to Send" : "Press Ctrl+Enter to Send");
    frmMain.entlabel2.set_caption(enter_sends ? "Ctrl+Enter for new line" : "");
}

void stack_popups(forms::Forms& forms)
{
    bool const in_front = forms.settings.ontop.on();
    for (forms::Popup& popup : forms.popup) {
        (in_front ? popup.ontop : popup.ontopoff).run();
    }
}

} // namespace core::settings_effects
