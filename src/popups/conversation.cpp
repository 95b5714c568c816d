#include "popups/conversation.h"

#include "forms/box_open.h"
#include "text/colouring.h"
#include "text/failure.h"
#include "text/fields.h"
#include "text/quote.h"

namespace popups {

namespace {

constexpr controls::Colour red{255, 0, 0};
constexpr controls::Colour black{0, 0, 0};

using Stacking = controls::Window::Stacking;

} // namespace

Conversation::Conversation(forms::Popup& popup, Kind kind, Uses uses)
    : popup_(popup), kind_(kind), uses_(uses)
{
    attach_window();
    attach_reply();
}

void Conversation::attach_window()
{
    popup_.window.activated.attach([this] { activated(); });
    popup_.message.changed.attach(
        [this] { popup_.message.select(popup_.message.text().size(), 0); });
    popup_.Label1.clicked.attach([this] { colour(); });
    popup_.colourmessage.attach([this] { colour(); });
    popup_.ontop.attach([this] { stack(Stacking::on_top); });
    // The bottom of all windows, not merely no longer on top.
    popup_.ontopoff.attach([this] { stack(Stacking::at_the_bottom); });
    popup_.Command1.clicked.attach([this] { close(); });
    popup_.Command2.clicked.attach([this] { send(); });
    popup_.fwd.clicked.attach([this] { forward(); });
    popup_.printbtn.clicked.attach([this] { save(); });
}

void Conversation::attach_reply()
{
    popup_.temp.changed.attach([this] { reply_changed(); });
    popup_.temp.focus.got.attach([this] { popup_.temp.caret_to_end(); });
    popup_.temp.key_up = [this](controls::Key key) { key_up(key); };
    auto const& settings = uses_.forms.settings;
    for (std::size_t index = 0; index < popup_.qb.size(); ++index) {
        auto const number = index + forms::Popup::first_button;
        popup_.qb[index].clicked.attach([this, number] { quick_answer(number); });
        popup_.qb[index].pointed.attach([this, index, number, &settings] {
            popup_.qb[index].tool_tip = settings.qsendtext[number].text();
        });
    }
}

void Conversation::activated()
{
    if (popup_.message.empty()) {
        return;
    }
    popup_.Check1.visible = !popup_.Label3.caption().empty();
    popup_.Command2.enabled = !popup_.temp.empty();
    popup_.message.select(popup_.message.text().size(), 0);
    popup_.temp.focus.set();
}

void Conversation::reply_changed()
{
    bool const too_long =
        popup_.temp.length() > static_cast<std::size_t>(uses_.forms.frmMain.messlen);
    popup_.Label1.set_caption(too_long ? "Message length exceeded" : "Response");
    popup_.Command2.enabled = !popup_.temp.empty();
}

void Conversation::key_up(controls::Key key)
{
    if (key.code != controls::Key::enter) {
        return;
    }
    bool const ctrl_alone = key.mask == controls::Key::ctrl;
    if (uses_.forms.frmMain.entersend.on() != ctrl_alone) {
        // One character, the last of the box: of a line end of two, the first one stays.
        popup_.temp.cut_last_character();
        send();
    }
}

void Conversation::quick_answer(std::size_t number)
{
    auto const& settings = uses_.forms.settings;
    popup_.temp.set_text(settings.qsendtext[number].text());
    if (settings.qsendi[number].on()) {
        send();
    } else {
        popup_.temp.focus.set();
    }
}

void Conversation::stack(Stacking place)
{
    popup_.window.stacking = place;
    popup_.window.repaint.run();
}

void Conversation::colour()
{
    auto const& frmMain = uses_.forms.frmMain;
    auto const& text = popup_.message.text();
    auto const turns =
        text::own_turns(text, frmMain.friendlyname, popup_.messagefrom.caption(), frmMain.letters);
    popup_.message.paint_over(red, turns.own, black);
    if (!turns.other_missing) {
        popup_.window.repaint.run();
    }
}

void Conversation::cut_reply()
{
    auto const limit = static_cast<std::size_t>(uses_.forms.frmMain.messlen);
    if (popup_.temp.length() > limit) {
        popup_.temp.set_text(std::string(popup_.temp.text(), 0, limit));
    }
}

std::string Conversation::quote() const
{
    auto const& frmMain = uses_.forms.frmMain;
    auto const& sender = popup_.messagefrom.caption();
    int const room =
        text::quote_room(frmMain.messlen, sender, frmMain.friendlyname, popup_.temp.text());
    return text::shortened(popup_.message.text(), room, frmMain.friendlyname, sender);
}

void Conversation::send()
{
    auto& frmMain = uses_.forms.frmMain;
    cut_reply();
    frmMain.txtSendMessage.set_text(quote() + std::string(text::line_end) + frmMain.friendlyname +
                                    "> " + popup_.temp.text());
    frmMain.tempreply = popup_.temp.text();
    frmMain.temprec = popup_.message.text();
    popup_.response = popup_.messagefrom.caption();
    if (popup_.Check1.on() && !popup_.Label3.caption().empty()) {
        popup_.response = "All";
    }
    frmMain.cmdSend.run();
    if (frmMain.reply_failed) {
        popup_.response.clear(); // The message, the reply and the slot stay, to be sent once more.
        return;
    }
    if (kind_ == Kind::pool) {
        give_back_slot();
    }
    popup_.Label3.set_caption("");
    popup_.response.clear();
    popup_.window.hide();
}

void Conversation::give_back_slot()
{
    uses_.pool.freepopupslot(popup_.punumber);
    popup_.Label3.set_caption("");
    popup_.message.set_text("");
    popup_.Check1.set(0);
}

void Conversation::close()
{
    if (kind_ == Kind::pool) {
        uses_.pool.freepopupslot(popup_.punumber);
        popup_.Label3.set_caption(""); // The recall window's note survives its close.
        popup_.message.set_text("");
    }
    popup_.response.clear();
    popup_.window.hide();
}

void Conversation::forward()
{
    auto& frmMain = uses_.forms.frmMain;
    cut_reply(); // Though it stays behind: what goes is the message, whole, however long it is.
    frmMain.messagetext.set_text("Begin forwarded message:\r\n" + popup_.message.text() + "\r\n" +
                                 frmMain.friendlyname + "> I'm forwarding this to you.");
    frmMain.fwd.set(1);
    frmMain.fwd.caption = frmMain.letters.upper(popup_.messagefrom.caption());
    popup_.response = popup_.messagefrom.caption();
    for (std::size_t button = 1; button < frmMain.qb.size(); ++button) {
        frmMain.qb[button].enabled = false;
    }
    if (kind_ == Kind::pool) {
        give_back_slot();
    }
    popup_.window.hide();
    popup_.response.clear(); // Else the next reply from another window would go to this sender.
    frmMain.window.state = controls::Window::State::normal;
    frmMain.window.show();
    frmMain.minimized = "no";
}

} // namespace popups
