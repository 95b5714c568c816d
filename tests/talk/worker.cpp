#include "tests/talk/worker.h"

#include "text/character_set.h"
#include "text/quote.h"

#include <algorithm>
#include <utility>

namespace talk {

namespace wire = network::wire;

namespace {

using Slots = std::vector<std::size_t>;

constexpr std::size_t slots = 10;
constexpr int first_number = 1000;
constexpr std::size_t longest_text = 970;
constexpr std::size_t forward_mark = 12;

text::CharacterSet const& letters()
{
    static auto const set = text::CharacterSet::western();
    return set;
}

std::string id_for(std::string_view name)
{
    return Worker::id_of(Worker::number_in(name));
}

Slots busy_slots(controls::ListBox const& wins)
{
    Slots busy;
    for (std::size_t slot = 0; slot < slots; ++slot) {
        if (wins.row(static_cast<int>(slot)) != std::to_string(slot)) {
            busy.push_back(slot);
        }
    }
    return busy;
}

Slots slots_with_a_message(sim::Peer& peer)
{
    Slots busy;
    for (std::size_t slot = 0; slot < slots; ++slot) {
        if (!peer.popup(slot).message.empty()) {
            busy.push_back(slot);
        }
    }
    return busy;
}

/// The slots of the stamps in `popups`, sorted; its other rows must be free ones.
Slots stamped_slots(controls::ListBox const& popups)
{
    Slots busy;
    for (std::string const& row : popups.rows()) {
        if (row != "-") {
            busy.push_back(static_cast<std::size_t>(row.back() - '0'));
        }
    }
    std::ranges::sort(busy);
    return busy;
}

/// Tells the first difference alone: two days, printed side by side, tell nobody anything.
template <typename Things>
void expect_same(Things const& found, Things const& wanted, std::string const& what)
{
    auto const place = std::ranges::mismatch(found, wanted);
    auto const told = [](auto at, auto end) {
        return at == end ? std::string("nothing more") : testing::PrintToString(*at);
    };
    EXPECT_TRUE(place.in1 == found.end() && place.in2 == wanted.end())
        << what << ", number " << place.in1 - found.begin() << " of " << found.size() << "\nis "
        << told(place.in1, found.end()) << "\nand should be " << told(place.in2, wanted.end());
}

} // namespace

std::string Worker::name_of(int number)
{
    return "PERSON " + std::to_string(first_number + number);
}

std::string Worker::id_of(int number)
{
    auto const digits = std::to_string(first_number + number);
    return "[ROOM" + digits + "\\USER" + digits + "]";
}

int Worker::number_in(std::string_view words)
{
    constexpr std::size_t digits = 4;
    auto const place = words.find_first_of("0123456789");
    return std::stoi(std::string(words.substr(place, digits))) - first_number;
}

Worker::Worker(sim::Peer& of, int number, Habits habits)
    : peer(of), name_(name_of(number)), id_(id_of(number)), habits_(habits)
{
}

void Worker::start()
{
    peer.start();
    arrived_.clear();
    auto takes = std::move(peer.listening.arrived);
    peer.listening.arrived = [this, takes = std::move(takes)](std::string datagram) {
        arrived_.push_back(datagram);
        takes(std::move(datagram));
    };
    absence_.reset();
    log_.start();
    history_.load();
}

void Worker::crash()
{
    catch_up();
    peer.crash();
}

void Worker::leave()
{
    catch_up();
    peer.person.leave();
    log_.close();
    history_.save();
}

void Worker::catch_up()
{
    while (arrived_.size() > peer.frmMain().cue.size()) {
        handled(arrived_.front());
        arrived_.pop_front();
    }
}

void Worker::handled(std::string_view datagram)
{
    auto const message = wire::parse_message(datagram);
    if (wire::is_presence(datagram) || !message) {
        return;
    }
    bool const own = message->sender == id_;
    bool const for_us = message->recipient == wire::to_all ? !own || habits_.hears_own_broadcasts
                                                           : !own && message->recipient == id_;
    if (for_us && away()) {
        stood_in(*message);
    } else if (for_us) {
        received(*message);
    }
    log_.clean();
}

void Worker::received(wire::Message const& message)
{
    auto const sender = name_of(number_in(message.sender));
    auto const body = wire::split_body(message.body);
    expect_log("Msg from ", sender, message.body);
    history_.add({.kind = "From",
                  .party = letters().proper(sender),
                  .head = body.head,
                  .main_text = body.main,
                  .recipient = message.recipient,
                  .seventh = "",
                  .eighth = ""});
}

void Worker::stood_in(wire::Message const& message)
{
    if (message.sender == id_ || message.body.starts_with(":RE:")) {
        return;
    }
    auto const& response = *absence_;
    if (response.starts_with("Forward to: ")) {
        sent_.push_back(
            datagram(message.sender, id_for(response.substr(forward_mark)),
                     "-- Msg auto fwded by " + name_ + " --\r\n" + std::string(message.body)));
        auto_row("From", message);
        if (!habits_.answers_what_it_forwards) {
            return;
        }
    }
    expect_sent(message.sender,
                std::string(message.body) + "\r\n" + name_ + "> (Auto Resp) " + response);
    auto_row("Auto Rep to", message);
}

void Worker::auto_row(std::string_view kind, wire::Message const& message)
{
    auto const body = wire::split_body(message.body);
    auto const party = body.head.substr(0, body.head.size() - (body.head.empty() ? 0 : 1));
    history_.add({.kind = kind,
                  .party = letters().proper(party),
                  .head = body.head,
                  .main_text = body.main,
                  .recipient = message.recipient,
                  .seventh = *absence_,
                  .eighth = ""});
}

void Worker::expect_sent(std::string_view recipient, std::string_view body)
{
    sent_.push_back(datagram(id_, recipient, body));
}

void Worker::expect_log(std::string_view word, std::string_view target, std::string_view text)
{
    log_.add(std::string(word).append(target).append("\t\r\n").append(text).append("\r\n---"));
}

void Worker::expect_to(std::string_view target, std::string_view text, int tab, int place)
{
    history_.add({.kind = "To",
                  .party = target,
                  .head = "",
                  .main_text = text,
                  .recipient = "",
                  .seventh = std::to_string(tab),
                  .eighth = std::to_string(place)});
}

std::vector<int> Worker::recipients() const
{
    std::vector<int> numbers;
    for (std::string const& name : peer.frmMain().allusers.rows()) {
        if (letters().upper(name) != name_) {
            numbers.push_back(number_in(name));
        }
    }
    return numbers;
}

std::vector<forms::Popup*> Worker::popups() const
{
    std::vector<forms::Popup*> shown;
    for (std::size_t const slot : popups_on_show(peer)) {
        shown.push_back(&peer.popup(slot));
    }
    return shown;
}

void Worker::pick(std::vector<int> const& numbers)
{
    auto& list = peer.frmMain().allusers;
    auto const rows = list.rows();
    std::vector<int> places;
    for (int const number : numbers) {
        auto const row = std::ranges::find(rows, letters().proper(name_of(number)));
        places.push_back(static_cast<int>(row - rows.begin()));
    }
    peer.enter([&] { list.choose_many(places, places.back()); });
}

void Worker::send_to(std::vector<int> const& numbers, std::string_view text)
{
    catch_up();
    absence_.reset();
    pick(numbers);
    auto const place = peer.frmMain().allusers.index();
    auto const cut = text.substr(0, longest_text);
    auto sorted = numbers;
    std::ranges::sort(sorted);
    for (int const number : sorted) {
        auto const name = name_of(number);
        expect_sent(id_of(number), wire::signed_text(name_, cut));
        expect_log("Msg to   ", name, cut);
        expect_to(letters().proper(name), cut, 0, place);
    }
    log_.clean();
    peer.person.send(text);
}

void Worker::send_to_all(std::string_view text)
{
    catch_up();
    absence_.reset();
    auto const whole = name_ + "> (To All) " + std::string(text.substr(0, longest_text));
    expect_sent(wire::to_all, whole);
    expect_log("Msg to   ", "ALL", whole);
    expect_to("ALL", whole, 0, peer.frmMain().allusers.index());
    log_.clean();
    peer.person.tick_all();
    peer.person.send(text);
}

void Worker::send_to_group(std::vector<int> const& members, std::string_view text)
{
    catch_up();
    absence_.reset();
    auto const cut = text.substr(0, longest_text);
    for (int const member : members) {
        expect_sent(id_of(member), cut);
    }
    expect_log("Msg to   ", group, cut);
    expect_to(group, cut, 1, 0);
    log_.clean();
    peer.person.open_tab(1);
    peer.person.pick_group(group);
    peer.person.send(text);
    peer.person.open_tab(0);
}

void Worker::expect_reply(std::string_view target, std::string_view recipient,
                          forms::Popup const& popup, std::string_view text)
{
    auto const& sender = popup.messagefrom.caption();
    auto const& message = popup.message.text();
    auto const room = text::quote_room(static_cast<int>(longest_text), sender, name_, text);
    auto const whole =
        text::shortened(message, room, name_, sender) + "\r\n" + wire::signed_text(name_, text);
    auto const body = wire::split_body(message);
    expect_sent(recipient, whole);
    expect_log("Msg to   ", letters().upper(target), whole);
    history_.add({.kind = "Replied to",
                  .party = target,
                  .head = body.head,
                  .main_text = body.main,
                  .recipient = target,
                  .seventh = text,
                  .eighth = ""});
    log_.clean();
}

void Worker::answer(forms::Popup& popup, std::string_view text)
{
    catch_up();
    absence_.reset();
    popup.Check1.set(0);
    auto const& sender = popup.messagefrom.caption();
    expect_reply(sender, id_for(sender), popup, text.substr(0, longest_text));
    peer.person.answer(popup, text);
}

void Worker::answer_all(forms::Popup& popup, std::string_view text)
{
    catch_up();
    absence_.reset();
    popup.Check1.set(1);
    bool const to_all = !popup.Label3.caption().empty();
    auto const& sender = popup.messagefrom.caption();
    expect_reply(to_all ? "All" : sender, to_all ? std::string(wire::to_all) : id_for(sender),
                 popup, text.substr(0, longest_text));
    peer.person.answer(popup, text);
}

void Worker::forward(forms::Popup& popup, int number)
{
    catch_up();
    absence_.reset();
    auto const first_sender = letters().upper(popup.messagefrom.caption());
    auto const whole = "Begin forwarded message:\r\n" + popup.message.text() + "\r\n" + name_ +
                       "> I'm forwarding this to you.";
    auto const cut = whole.substr(0, longest_text);
    auto const name = name_of(number);
    peer.person.click(popup, popup.fwd);
    pick({number});
    sent_.push_back(
        datagram(id_for(first_sender), id_of(number), wire::signed_text(first_sender, cut)));
    expect_log("Fwd to   ", name, cut);
    expect_to(letters().proper(name), cut, 0, peer.frmMain().allusers.index());
    log_.clean();
    peer.person.click(peer.frmMain().sendbtn);
}

void Worker::go_away(std::size_t response)
{
    catch_up();
    absence_ = peer.settings().ar.at(response).text();
    peer.person.choose(peer.forms().menuform.autores, response);
}

void Worker::come_back()
{
    constexpr std::size_t off = 4;
    catch_up();
    absence_.reset();
    peer.person.choose(peer.forms().menuform.autores, off);
}

void Worker::check_slots() const
{
    auto const& main = peer.frmMain();
    auto const busy = busy_slots(main.wins);
    EXPECT_EQ(main.wins.count(), static_cast<int>(slots)) << name_;
    EXPECT_EQ(main.popups.count(), static_cast<int>(slots)) << name_;
    EXPECT_EQ(popups_on_show(peer), busy) << name_;
    EXPECT_EQ(slots_with_a_message(peer), busy) << name_;
    EXPECT_EQ(stamped_slots(main.popups), busy) << name_;
    EXPECT_EQ(main.pucount.caption(), std::to_string(slots - busy.size())) << name_;
}

void Worker::check_history() const
{
    expect_same(untimed_rows(peer.history()), history_.rows(), "history of " + name_);
}

void Worker::check_logs() const
{
    std::string content;
    bool mirrored = false;
    for (std::string const& file : peer.files.names()) {
        // By their names the finished ones come first, in the order of time.
        if (file.starts_with("logs/")) {
            content += peer.files.content(file);
            mirrored = file == "logs/logtemp.txt";
        }
    }
    expect_same(unstamped_lines(content), log_.lines(), "log lines of " + name_);
    EXPECT_EQ(mirrored, log_.mirrored()) << name_;
}

void Worker::check_sent(Texts const& seen) const
{
    Texts messages;
    std::ranges::copy_if(seen, std::back_inserter(messages),
                         [](std::string const& datagram) { return !wire::is_presence(datagram); });
    expect_same(messages, sent_, "messages from " + name_);
}

} // namespace talk
