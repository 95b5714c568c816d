#include "fuzz/check.h"
#include "fuzz/pieces.h"
#include "fuzz/target.h"
#include "sim/office.h"

#include <string>
#include <string_view>

namespace {

using fuzz::check;

struct Story {
    std::string datagram; ///< what arrives
    std::string reply;    ///< what the reader types
};

sim::Setup setup()
{
    return {.settings = {{"REPLYTOALL", "1"}},
            .users = {"[ROOM12\\ALICE]=ALICE MEYER", "[ROOM07\\BOB]=BOB"}};
}

/// The log and the history show every row, whatever somebody has written.
void look_at_rows(sim::Peer& peer)
{
    auto& log = peer.forms().log;
    for (int row = 0; row < log.lstMessages.count(); ++row) {
        peer.enter([&] { log.lstMessages.choose(row); });
        peer.enter([&] { log.Command1.click(); });
        check(peer.outside.clipboard == log.Text1.text(), "what is on show is copied");
    }
    for (int number = 1; number <= peer.history().count(); ++number) {
        peer.enter([&] { peer.history().choose(number); });
        peer.enter([&] { peer.history().double_clicked.run(); });
    }
}

void save(sim::Peer& peer, forms::Popup& popup)
{
    peer.outside.opened.clear();
    peer.person.click(popup, popup.printbtn);
    if (peer.outside.opened.empty()) {
        check(peer.boxes.texts().back() == "Cannot create file", "a person is told why not");
        return;
    }
    auto const page = peer.files.read(peer.outside.opened.back());
    check(page.find(popup.message.text()) != page.npos, "a saved message is whole");
    check(page.find(popup.temp.text()) != page.npos, "with what was going to be its reply");
}

void answer(sim::Office& office, sim::Peer& peer, forms::Popup& popup, std::string_view reply)
{
    auto const limit = static_cast<std::size_t>(peer.frmMain().messlen);
    auto const words = std::string(reply.substr(0, limit));
    office.segment.forget();
    peer.person.type_reply(popup, reply);
    save(peer, popup);
    peer.person.click(popup, popup.Command2);

    check(!popup.window.visible() && popup.message.empty(), "a reply closes its window");
    auto const sent = office.segment.texts_from(peer.host.name);
    check(sent.size() == 1, "a reply is one datagram");
    check(sent.front().ends_with("\r\nALICE MEYER> " + words), "a reply stands behind its quote");
}

void forward(sim::Peer& peer, forms::Popup& popup)
{
    auto const message = popup.message.text();
    peer.person.click(popup, popup.fwd);
    auto const& draft = peer.frmMain().messagetext.text();
    check(draft.find(message) != draft.npos, "a message is forwarded whole");
    check(!popup.window.visible() && popup.message.empty(), "a forward closes its window");
}

void run(Story const& story)
{
    sim::Office office;
    auto& peer = office.peer("ROOM12", "alice", "Alice Meyer", setup());
    peer.environment.desktop["userprofile"] = "/home/alice";
    peer.files.put("/home/alice/.profile", "");
    peer.boxes.answer_all(); // A name that cannot be part of a file's brings one up.
    office.settle();
    peer.listening.receive(story.datagram);
    office.settle();
    auto& popup = peer.popup(0);
    if (!popup.window.visible()) {
        return;
    }
    peer.person.turn_to(popup.window);
    if (story.reply.empty()) {
        forward(peer, popup);
    } else {
        answer(office, peer, popup, story.reply);
    }
    office.settle();
    look_at_rows(peer);
    check(peer.running(), "no message ends the program");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size)
{
    fuzz::Pieces pieces(fuzz::as_text(bytes, size));
    Story story;
    story.datagram = pieces.next();
    story.reply = pieces.next();
    run(story);
    return 0;
}
