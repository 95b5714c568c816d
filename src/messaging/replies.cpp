#include "messaging/replies.h"

#include "forms/box_open.h"
#include "messaging/groups.h"
#include "network/directory.h"
#include "network/identity.h"
#include "network/wire.h"
#include "text/fields.h"

#include <array>

namespace messaging {

namespace wire = network::wire;

namespace {

constexpr int users_tab = 0;
constexpr int groups_tab = 1;
/// A character, not a key: as a key, the number is that of F1.
constexpr int sending_character = 112;
constexpr std::array<std::size_t, 10> search_order{1, 2, 3, 4, 5, 6, 7, 8, 9, 0};

} // namespace

Replies::Replies(Uses uses) : uses_(uses), frmMain_(uses.forms.frmMain)
{
    frmMain_.cmdSend.attach([this] { cmdSend(); });
    auto& box = frmMain_.txtSendMessage;
    box.focus.got.attach([&box] { box.caret_to_end(); });
    box.key_press = [this](int character) {
        bool const sends = character == sending_character;
        if (sends) {
            cmdSend();
        }
        return sends;
    };
}

void Replies::cmdSend()
{
    frmMain_.reply_failed = false;
    uses_.away.switch_off();
    frmMain_.user = network::own_identity(uses_.environment, frmMain_.letters);
    try {
        send_reply();
    } catch (text::Failure const& failure) {
        if (!network::Transport::is_socket(failure.origin)) {
            throw; // What a file or a group refuses is nobody's here.
        }
        failed(failure);
    }
}

void Replies::send_reply()
{
    if (frmMain_.txtSendMessage.empty()) {
        reset_ports_if_wanted();
    } else if (auto* const window = asking_window()) {
        send_for(*window);
    } else if (frmMain_.SSTab1.tab() == users_tab) {
        send_to(address_of_main_window());
    } else {
        if (frmMain_.SSTab1.tab() == groups_tab) {
            send_to_group();
        }
        frmMain_.cleanlog.run();
        frmMain_.txtSendMessage.focus.set();
    }
}

forms::Popup* Replies::asking_window()
{
    auto& forms = uses_.forms;
    if (!forms.popuplast.response.empty()) {
        return &forms.popuplast;
    }
    for (std::size_t const slot : search_order) {
        if (!forms.popup[slot].response.empty()) {
            return &forms.popup[slot];
        }
    }
    return nullptr;
}

void Replies::send_for(forms::Popup& window)
{
    Address const address{.target = window.response, .recipient = lookup(window.response)};
    if (&window != &uses_.forms.popuplast) {
        // From a numbered window an unknown name leaves all the same, and is lost.
        window.response.clear();
    } else if (address.recipient == wire::to_nobody) {
        tell_nobody(address.target);
        return;
    }
    send_to(address);
}

Replies::Address Replies::address_of_main_window()
{
    if (!frmMain_.Checkallusers.on()) {
        auto const& name = frmMain_.allusers.text();
        return {.target = name, .recipient = lookup(name)};
    }
    frmMain_.Checkallusers.set(0);
    frmMain_.allusers.enabled = true;
    frmMain_.txtSendMessage.set_text("To All (from " + frmMain_.friendlyname + "):" +
                                     std::string(text::line_end) + frmMain_.txtSendMessage.text());
    return {.target = "ALL", .recipient = std::string(wire::to_all)};
}

void Replies::send_to(Address const& address)
{
    auto const& reply = frmMain_.txtSendMessage.text();
    send_text(address.recipient);
    uses_.records.log_row("Msg to   ", address.target, reply);
    uses_.records.reply_row(address.target, frmMain_.temprec, frmMain_.tempreply);
    frmMain_.statustext.set_caption("Message sent to " + address.target);
    frmMain_.txtSendMessage.set_text("");
    frmMain_.cleanlog.run();
    reset_ports_if_wanted();
}

void Replies::send_to_group()
{
    auto const group = chosen_group(frmMain_.List1.text(), uses_.forms.groups);
    for (std::string const& member : group.members) {
        // Unlike a group send of the main window, an unknown member's datagram leaves too.
        send_text(lookup(frmMain_.letters.upper(member)));
    }
    uses_.records.log_row("Msg to   ", group.name, frmMain_.txtSendMessage.text());
    uses_.records.reply_row(group.name, frmMain_.temprec, frmMain_.tempreply);
    frmMain_.txtSendMessage.set_text("");
}

void Replies::send_text(std::string_view recipient)
{
    frmMain_.reply_failed = true; // Until it is out.
    uses_.transport.send(wire::message(frmMain_.user, recipient, frmMain_.txtSendMessage.text()));
    frmMain_.reply_failed = false;
}

void Replies::tell_nobody(std::string_view target)
{
    // This one box does not wake the queue.
    frmMain_.boxopen.set(1);
    uses_.boxes.show({.text = "User: " + std::string(target) + " could not be found"});
    frmMain_.boxopen.set(0);
}

void Replies::failed(text::Failure const& failure)
{
    uses_.trouble.tell_sending_failed(failure);
    frmMain_.cleanlog.run();
}

void Replies::reset_ports_if_wanted()
{
    if (uses_.forms.settings.resetports.on()) {
        frmMain_.Command6.run();
    }
}

std::string Replies::lookup(std::string_view name) const
{
    return network::lookupuser(name, frmMain_.userlist, frmMain_.letters);
}

} // namespace messaging
