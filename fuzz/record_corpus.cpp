// Writes the corpus: what people in a simulated office say to each other, and the files that they
// have in the end.
//
//     record_fuzz_corpus FOLDER

#include "fuzz/pieces.h"
#include "network/wire.h"
#include "sim/office.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace std::chrono_literals;
namespace wire = network::wire;

/// The folders of one corpus, and the files that are put there.
class Corpus {
public:
    explicit Corpus(std::filesystem::path folder) : folder_(std::move(folder)) {}

    void put(std::string_view target, std::string_view name, std::string_view content) const
    {
        auto const place = folder_ / target;
        std::filesystem::create_directories(place);
        std::ofstream(place / name, std::ios::binary) << content;
    }

private:
    std::filesystem::path folder_;
};

/// Everything that was said on the segment, as one input of the datagram path.
std::string heard(sim::Office const& office, char mode, char order)
{
    std::string input(1, mode);
    for (std::string const& datagram : office.segment.texts()) {
        input += fuzz::piece(order + datagram);
    }
    return input;
}

std::string pieces(std::vector<std::string> const& texts)
{
    std::string whole;
    for (std::string const& each : texts) {
        whole += fuzz::piece(each);
    }
    return whole;
}

/// Three people who have met before.
struct Room {
    Room()
    {
        office.settle();
        office.segment.forget();
    }

    static sim::Setup acquainted()
    {
        return {.users = {"[ROOM12\\ALICE]=ALICE MEYER", "[ROOM07\\BOB]=BOB",
                          "[ROOM33\\CARL]=CARL DUNN"}};
    }

    void reply(sim::Peer& peer, std::string_view words)
    {
        auto& popup = peer.popup(0);
        peer.enter([&] {
            popup.window.activated.run();
            popup.temp.set_text(words);
        });
        peer.person.click(popup, popup.Command2);
        office.settle();
    }

    sim::Office office;
    sim::Peer& alice = office.peer("ROOM12", "alice", "Alice Meyer", acquainted());
    sim::Peer& bob = office.peer("ROOM07", "bob", "Bob", acquainted());
    sim::Peer& carl = office.peer("ROOM33", "carl", "Carl Dunn", acquainted());
};

void first_contact(Corpus const& corpus)
{
    sim::Office office;
    auto& bob = office.newcomer("ROOM07", "bob", "Bob");
    corpus.put("fuzz_settings", "first_run", bob.files.content("settings.txt"));
    corpus.put("fuzz_buttons", "first_run", bob.files.content("buttons.txt"));
    corpus.put("fuzz_groups", "first_run", bob.files.content("groups.txt"));
    office.newcomer("ROOM33", "carl", "Carl Dunn");
    office.settle();
    bob.person.leave();
    office.settle();
    corpus.put("fuzz_datagram", "first_contact", heard(office, '\0', '\0'));
    corpus.put("fuzz_datagram", "first_contact_tick_by_tick", heard(office, ' ', '\1'));
    corpus.put("fuzz_users", "two_newcomers", bob.files.content("users.txt"));
    corpus.put("fuzz_wire", "announcement", office.segment.texts().front());
    corpus.put("fuzz_wire", "sign_off", office.segment.texts().back());
}

void conversation(Corpus const& corpus)
{
    Room room;
    auto& office = room.office;
    auto& alice = room.alice;
    auto& bob = room.bob;
    auto& carl = room.carl;
    bob.person.send_to("Alice Meyer", "Are you there?");
    office.settle();
    room.reply(alice, "Yes.\r\nWhat is it?");
    room.reply(bob, "Lunch > coffee?");
    auto const thread = alice.popup(0).message.text();
    corpus.put("fuzz_colouring", "thread", pieces({"ALICE MEYER", "Bob", thread}));
    corpus.put("fuzz_wire", "reply", office.segment.texts().back());
    carl.person.tick_all();
    carl.person.send("To all of you");
    office.settle();
    auto const& heard_by_alice = office.segment.texts();
    corpus.put("fuzz_reply", "answered", pieces({heard_by_alice.front(), "Yes.\r\nWhat is it?"}));
    corpus.put("fuzz_reply", "answered_to_all", pieces({heard_by_alice.back(), "Yes."}));
    corpus.put("fuzz_reply", "forwarded", pieces({heard_by_alice.back(), ""}));
    corpus.put("fuzz_datagram", "conversation", heard(office, ' ', '\0'));
    corpus.put("fuzz_datagram", "conversation_behind_a_box", heard(office, 'd', '\0'));
    corpus.put("fuzz_wire", "to_all", office.segment.texts().back());
    for (sim::Peer* const peer : {&alice, &bob}) {
        peer->enter([&] { peer->forms().historyfrm.savebtn.run(); });
        corpus.put("fuzz_history", "of_" + peer->host.name, peer->files.content("hist.dat"));
        auto const log = peer->files.content("logs/logtemp.txt");
        corpus.put("fuzz_log_recovery", "of_" + peer->host.name, log);
    }
    alice.enter([&] { alice.frmMain().saveusers.run(); });
    corpus.put("fuzz_settings", "saved", alice.files.content("settings.txt"));
    corpus.put("fuzz_users", "three_people", alice.files.content("users.txt"));
    corpus.put("fuzz_fields", "settings", alice.files.content("settings.txt"));
    corpus.put("fuzz_fields", "history", alice.files.content("hist.dat"));
}

void absence(Corpus const& corpus)
{
    constexpr std::size_t answer = 0;
    Room room;
    auto& office = room.office;
    auto& alice = room.alice;
    alice.enter([&] { alice.forms().menuform.autores.choose(answer); });
    room.bob.person.send_to("Alice Meyer", "Are you there?");
    office.settle();
    room.carl.person.send_to("Alice Meyer", "\"Anybody\"?");
    office.settle();
    corpus.put("fuzz_datagram", "answered_while_away", heard(office, '!', '\1'));
    corpus.put("fuzz_datagram", "forwarded_while_away", heard(office, '"', '\1'));
    alice.enter([&] { alice.forms().historyfrm.savebtn.run(); });
    corpus.put("fuzz_history", "of_an_absence", alice.files.content("hist.dat"));
}

/// What comes from elsewhere: a person's answers, the vendor's host, the desktop, the screen.
void elsewhere(Corpus const& corpus)
{
    std::string const western = "\2";
    std::string const vietnamese = "\10";
    corpus.put("fuzz_answers", "every_button",
               pieces({std::string("\0Bob", 4), "\0014200", "\0024300", "\0034400x", "\004 04500",
                       "\5Sales", "\6Desk, \"A\""}));
    corpus.put("fuzz_answers", "no_ports",
               pieces({"\0014112", "\0024112", "\00299999", "\0011e99"}));
    corpus.put("fuzz_updates", "newer", pieces({"1.5.4\r\n", "Faster.~Smaller."}));
    corpus.put("fuzz_updates", "the_same", pieces({"1.5.3~notes", ""}));
    corpus.put("fuzz_updates", "no_version", pieces({"<title>Moved</title>", ""}));
    corpus.put("fuzz_session_entry", "own",
               pieces({"[Desktop Entry]\nType=Application\nExec=\"/opt/vexlo/vexloim.exe\" /m\n",
                       "/opt/vexlo"}));
    corpus.put("fuzz_session_entry", "by_hand",
               pieces({"# mine\n[Desktop Action More]\nExec=other\n[Desktop Entry]\n"
                       "Exec = \"/opt/a\\\\$b/vexloim.exe\" /m\r\n",
                       R"(/home/a "b" $c `d` 100% \e)"}));
    corpus.put("fuzz_shown_text", "line_ends",
               western + pieces({"one\r\ntwo\rthree\nfour", "one\r\nthree\nfour\r\n"}));
    corpus.put("fuzz_shown_text", "marks", vietnamese + pieces({"a\xcc\xe2\r\n", "a\xd2\r\n"}));
}

/// What the machine tells the companion of itself.
void machine(Corpus const& corpus)
{
    corpus.put("fuzz_machine", "rules",
               "table inet filter {\n\tchain office {\n\t\tudp dport { 53, 4100-4200 } counter "
               "packets 7 bytes 99 accept comment \"the office\"\n\t\treturn\n\t}\n\tchain input "
               "{\n\t\ttype filter hook input priority filter; policy drop;\n\t\tct state "
               "established,related accept\n\t\tiifname \"lo\" accept\n\t\tmeta pkttype broadcast "
               "jump office\n\t\tudp dport != 4111 reject\n\t\tgoto office\n\t}\n}\n");
    corpus.put(
        "fuzz_machine", "table_of_ports",
        "   sl  local_address rem_address   st tx_queue rx_queue tr tm->when retrnsmt   uid  "
        "timeout inode ref pointer drops\n  412: 00000000:100F 00000000:0000 07 "
        "00000000:00000000 00:00000000 00000000  1000        0 40312 2 0000000000000000 3\n");
    std::string packet("\x45\0\0\x1f\0\0\0\0\x40\x11\0\0\x0a\0\0\2\xff\xff\xff\xff", 20);
    packet += std::string("\x10\x10\x10\x0f\0\x0b\0\0", 8) + "*A=";
    corpus.put("fuzz_machine", "packet", packet);
}

/// What no program of ours says.
void nonsense(Corpus const& corpus)
{
    constexpr char longest = '\xf8';
    auto const input = [](std::vector<std::string> const& texts) { return " " + pieces(texts); };
    std::string const none(1, '\0');
    corpus.put("fuzz_datagram", "marker_without_separator",
               input({none + "***][X]hi", none + "[ROOM07\\BOB][ROOM12\\ALICE]BOB> late"}));
    corpus.put("fuzz_datagram", "empty_and_one_blank", input({none, none + " ", none + "]"}));
    corpus.put("fuzz_datagram", "no_opening_brackets", input({none + "ab][ROOM12\\ALICE]x"}));
    corpus.put("fuzz_datagram", "longest_presence", input({longest + std::string("**-[A\\B]=")}));
    corpus.put("fuzz_datagram", "longest_message",
               input({longest + std::string("[A\\B][ROOM12\\ALICE]BOB> hello ALICE MEYER> ")}));
    corpus.put("fuzz_datagram", "longest_names",
               input({longest + std::string("***a"), longest + std::string("]]")}));
    std::vector<std::string> many(14, none + "[ROOM07\\BOB][ROOM12\\ALICE]BOB> once more");
    corpus.put("fuzz_datagram", "more_than_ten_popups", input(many));
    corpus.put("fuzz_datagram", "hundreds",
               input(std::vector<std::string>(310, none + "[B][ALL]B> x")));
    corpus.put("fuzz_wire", "no_head", "[A][ALL]just words");
    corpus.put("fuzz_fields", "quotes", "a, \"b, c\"d,\r\n\"e");
    corpus.put("fuzz_users", "commas", "[A\\B]=MEYER, ALICE\r\n[ALL]=ALL\r\n,\r\n\"[X]=Y\"\r\n");
    corpus.put("fuzz_groups", "members",
               "[Group01name  ]=Sales\r\n[Group10name  ]=A, B\r\n[Group01member]=[room07\\BOB]\r\n"
               "[Group01member]=[NO\\BODY]\r\n[Group10member]=\r\n");
    corpus.put("fuzz_buttons", "bare_fields", [] {
        std::string file = "\"Emergency\", Come \"at\" once,1\r\n";
        for (int row = 0; row < 23; ++row) {
            file += "caption,message,0x\r\n";
        }
        return file;
    }());
    corpus.put("fuzz_history", "huge_count", " 2147483647 \r\n0,0,0\r\n");
    corpus.put("fuzz_history", "cut_off", " 1 \r\n1,0,1\r\n\"20261115151500\",\"11/15/26");
    corpus.put(
        "fuzz_settings", "odd_values",
        "[WINPOSX             ]=1e3\r\n[LISTENINGPORT       ]=4200x\r\n"
        "[PLAYSOUND           ]= 2 \r\n[MESSAGEFONTSIZE     ]=big,[USERLISTFONT        ]=1\r\n"
        "[AUTORESPONSEMSG3    ]=Forward to: BOB\r\n");
    corpus.put("fuzz_colouring", "name_in_name",
               pieces({"JOANNE", "Ann", "joanne> a\r\nAnn> b\r\nJOANNE> c"}));
    corpus.put("fuzz_log_recovery", "all_line_ends", "one\r\n\r\ntwo\rthree\nfour");
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("usage: record_fuzz_corpus FOLDER\n", stderr);
        return 2;
    }
    Corpus const corpus(argv[1]);
    first_contact(corpus);
    conversation(corpus);
    absence(corpus);
    elsewhere(corpus);
    machine(corpus);
    nonsense(corpus);
    return 0;
}
