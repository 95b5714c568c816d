#include "demo/story.h"

#include <cstdio>
#include <string>

namespace demo {

namespace {

using namespace std::chrono_literals;

QString const main_window = QStringLiteral("frmMain");
QString const first_popup = QStringLiteral("popup0");

void tell(std::string const& what)
{
    std::printf("  %s\n", what.c_str());
    std::fflush(stdout);
}

std::string listed(sim::Peer& peer)
{
    std::string names;
    for (std::string const& name : peer.frmMain().allusers.rows()) {
        names += (names.empty() ? "" : ", ") + name;
    }
    return names.empty() ? "nobody" : names;
}

std::string popup_text(sim::Peer& peer)
{
    auto text = peer.popup(0).message.text();
    for (auto place = text.find("\r\n"); place != std::string::npos; place = text.find("\r\n")) {
        text.replace(place, 2, " / ");
    }
    return "\"" + peer.popup(0).window.caption + "\": " + text;
}

void tell_last_datagram(Stage& stage)
{
    tell("   on the wire: " + *stage.office.segment.sent().back().bytes);
}

} // namespace

bool play_first_exchange(Stage& stage)
{
    std::printf("An office on a simulated network. Nothing leaves this machine.\n\n");
    auto& alice = stage.office.peer("ROOM12", "alice", "Alice Meyer");
    stage.show(alice, {60, 80});
    tell("Alice Meyer starts her computer, ROOM12. Her list shows " + listed(alice) + ".");
    stage.pass(2s);

    auto& bob = stage.office.newcomer("ROOM07", "bob", "Bob");
    stage.show(bob, {700, 80});
    tell("Bob starts the program in ROOM07 for the first time, and enters his name.");
    stage.pass(3s);
    tell("They have found each other. Alice sees " + listed(alice) + "; Bob sees " + listed(bob) +
         ".");

    tell("Alice picks Bob, types a line and presses the send button.");
    stage.pick(alice, "Bob");
    stage.type(alice, main_window, QStringLiteral("messagetext"), QStringLiteral("Lunch at noon?"));
    auto const main_picture = stage.picture(alice, main_window, QStringLiteral("alice-main"));
    stage.press(alice, main_window, QStringLiteral("sendbtn"));
    tell_last_datagram(stage);
    tell("   her status line: " + alice.frmMain().statustext.caption());
    stage.pass(500ms);

    bool const arrived = bob.popup(0).window.visible();
    tell(arrived ? "It pops up on Bob's screen: " + popup_text(bob)
                 : "Nothing popped up on Bob's screen.");
    stage.type(bob, first_popup, QStringLiteral("temp"), QStringLiteral("Yes, the usual place"));
    auto const popup_picture = stage.picture(bob, first_popup, QStringLiteral("bob-popup"));
    tell("Bob answers in the same window, and presses Send.");
    stage.press(bob, first_popup, QStringLiteral("Command2"));
    tell_last_datagram(stage);
    stage.pass(500ms);

    bool const answered = alice.popup(0).window.visible();
    tell(answered ? "Alice reads: " + popup_text(alice) : "No answer came up at Alice's.");
    auto const answer_picture = stage.picture(alice, first_popup, QStringLiteral("alice-popup"));
    auto const bob_picture = stage.picture(bob, main_window, QStringLiteral("bob-main"));

    std::printf("\nPictures of the windows:\n");
    for (auto const& file : {main_picture, popup_picture, answer_picture, bob_picture}) {
        tell(file.toStdString());
    }
    return arrived && answered;
}

} // namespace demo
