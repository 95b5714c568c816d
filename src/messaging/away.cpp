#include "messaging/away.h"

#include "text/numbers.h"

namespace messaging {

namespace {

constexpr std::size_t off_entry = 4;
constexpr std::size_t toggle_entry = 2;

} // namespace

Away::Away(forms::FrmMain& frmMain, forms::MenuForm& menuform, forms::Settings const& settings,
           forms::HistoryFrm& historyfrm)
    : frmMain_(frmMain), menuform_(menuform), settings_(settings), historyfrm_(historyfrm)
{
    frmMain_.away.clicked.attach([this] { changed(); });
}

void Away::switch_off()
{
    frmMain_.away.set(0);
    menuform_.autores.check_only(off_entry);
    changed();
}

void Away::changed()
{
    if (frmMain_.away.on()) {
        show_on();
    } else {
        show_off();
    }
}

void Away::show_on()
{
    historyfrm_.autores.visible = true;
    menuform_.Command3.run();
    frmMain_.Label5.set_caption("Auto Respond On: " + settings_.autorespond.text());
    frmMain_.Label5.visible = true;
    frmMain_.Frame2.visible = true;
    menuform_.closepopups[toggle_entry].caption = "Disable Auto Respond";
}

void Away::show_off()
{
    historyfrm_.autores.visible = false;
    frmMain_.Label5.visible = false;
    frmMain_.Frame2.visible = false;
    menuform_.closepopups[toggle_entry].caption = "Enable Auto Respond";
    bool const all_free = text::leading_whole_number(frmMain_.pucount.caption()) >= 10;
    (all_free ? menuform_.Command2 : menuform_.Command1).run();
}

} // namespace messaging
