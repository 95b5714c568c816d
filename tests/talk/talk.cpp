#include "tests/talk/talk.h"

#include "network/wire.h"
#include "tests/sim/opening.h"

namespace talk {

std::string datagram(std::string_view from, std::string_view to, std::string_view body)
{
    return network::wire::message(from, to, body);
}

std::string logged(std::string_view head)
{
    return "11-15-26:03:18p:" + std::string(head);
}

std::string logged(std::string_view head, std::string_view body)
{
    return logged(head).append("\t\r\n").append(body).append("\r\n---");
}

Texts painted(controls::RichText const& box, controls::Colour colour)
{
    Texts found;
    for (auto const& run : box.runs()) {
        if (run.colour == colour) {
            found.push_back(box.text().substr(run.start, run.length));
        }
    }
    return found;
}

Row last_row(sim::Peer& peer)
{
    return peer.history().empty() ? Row{} : peer.history().row(peer.history().count());
}

Texts told(controls::Table const& history)
{
    Texts rows;
    for (int number = 1; number <= history.count(); ++number) {
        auto const& row = history.row(number);
        rows.push_back(row[2] + "|" + row[3] + "|" + row[5]);
    }
    return rows;
}

Row row_from(std::string_view sender, std::string_view head, std::string_view text)
{
    Row row;
    row[0] = "20261115151802";
    row[1] = "11/15/26 03:18 pm";
    row[2] = "From";
    row[3] = sender;
    row[4] = head;
    row[5] = text;
    row[6] = alice_id;
    row[9] = std::string(sender) + " Msg 03:18 pm";
    return row;
}

std::vector<std::size_t> popups_on_show(sim::Peer& peer)
{
    std::vector<std::size_t> shown;
    for (std::size_t slot = 0; slot < peer.forms().popup.size(); ++slot) {
        if (peer.popup(slot).window.visible()) {
            shown.push_back(slot);
        }
    }
    return shown;
}

Talk::Talk(sim::Setup setup)
{
    setup.users = known_users;
    alice.prepare("Alice Meyer", setup);
    bob.prepare("Bob", {.users = known_users});
    carl.prepare("Carl Dunn", {.users = known_users});
    flows::open_office(office, moment);
}

void Talk::hear(std::string_view body, std::string_view from, std::string_view to)
{
    office.segment.inject_to(alice.host.name, datagram(from, to, body));
    office.settle();
}

void Talk::open_history()
{
    alice.enter([this] { alice.forms().menuform.showhistory.run(); });
}

void Talk::keep(Row const& row)
{
    auto& history = alice.history();
    history.add(row);
    alice.enter([&] { history.choose(history.count()); });
}

void Talk::restart_alice()
{
    alice.person.leave();
    alice.start();
    office.settle();
}

} // namespace talk
