#include "messaging/shortcuts.h"

namespace messaging {

namespace {

constexpr controls::Colour emergency_red{255, 0, 0};

} // namespace

Shortcuts::Shortcuts(forms::FrmMain& frmMain, forms::Settings const& settings)
    : frmMain_(frmMain), settings_(settings)
{
    frmMain_.messagetext.key_up = [this](controls::Key key) { key_up(key); };
    for (std::size_t number = 1; number < frmMain_.qb.size(); ++number) {
        auto& button = frmMain_.qb[number];
        button.clicked.attach([this, number] { quick_button(number); });
        button.pointed.attach(
            [this, number, &button] { button.tool_tip = settings_.qsendtext.at(number).text(); });
    }
}

void Shortcuts::key_up(controls::Key key)
{
    if (frmMain_.multiusers.empty()) {
        return; // The keys are dead until a user or a group has been clicked, "Send to All Users"
                // or not.
    }
    if (key.code == controls::Key::enter) {
        bool const ctrl = (key.mask & controls::Key::ctrl) != 0;
        if (frmMain_.entersend.on() != ctrl) {
            // One character, the last of the box: of a line end of two, the first one stays.
            frmMain_.messagetext.cut_last_character();
            frmMain_.sendbtn.click();
        }
    } else if (key.code >= controls::Key::f1 && key.code <= controls::Key::f12) {
        int const button = key.code - controls::Key::f1 + 1;
        frmMain_.qb.at(static_cast<std::size_t>(button)).click();
    }
}

void Shortcuts::quick_button(std::size_t number)
{
    if (frmMain_.qb.at(number).background == emergency_red) {
        frmMain_.Checkallusers.set(1); // An emergency goes to everybody; the colour alone decides.
    }
    frmMain_.messagetext.set_text(settings_.qsendtext.at(number).text());
    frmMain_.messagetext.focus.set();
    if (settings_.qsendi.at(number).on()) {
        frmMain_.sendbtn.click();
    }
}

} // namespace messaging
