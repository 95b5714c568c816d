#include "flows.h"

#include "text/fields.h"

namespace {

using namespace flows;
using platform::Answer;
using sim::MemoryFiles;
using testing::AnyOf;
using testing::Contains;
using testing::IsEmpty;

/// An office in which Alice lives through a whole day on a disk that may fail: first run, first
/// contact, a message each way, a change of name, and the exit.
class Day {
public:
    Day()
    {
        alice.boxes.answer_all();
        bob_.boxes.answer_all();
        bob_.prepare("Bob");
        bob_.start();
        office.settle();
    }

    void live()
    {
        alice.start();
        office.settle();
        if (alice.running()) {
            say_hello();
        }
        office.settle();
        if (alice.running()) {
            alice.enter([this] { alice.frmMain().Command1.run(); });
        }
        office.settle();
        if (alice.running()) {
            alice.enter([this] { alice.frmMain().Timer1.tick.run(); });
        }
        if (alice.running()) {
            leave();
        }
    }

    /// The next morning, on a disk that has been mended.
    void live_again()
    {
        alice.files.read_only = false;
        alice.files.space.reset();
        alice.start();
        office.settle();
    }

    sim::Office office;
    sim::Peer& alice = office.host("ROOM12", "alice");

private:
    void say_hello()
    {
        office.segment.inject_to("ROOM12", message(bob_id, alice_id, "Bob> Hello"));
        office.settle();
        auto& list = alice.frmMain().allusers;
        alice.enter([&] {
            list.choose_many({0}, 0);
            alice.frmMain().messagetext.set_text("Hello");
            alice.frmMain().sendbtn.click();
        });
    }

    void leave()
    {
        alice.boxes.will_answer(Answer::no);
        alice.enter([this] { alice.frmMain().spotx.click(); });
    }

    sim::Peer& bob_ = office.host("ROOM07", "bob");
};

std::size_t rows_of_buttons(Day const& day)
{
    std::size_t rows = 0;
    text::for_each_line(day.alice.files.content("buttons.txt"),
                        [&rows](std::string_view) { ++rows; });
    return rows;
}

/// The next start loads what the run has left. A table of buttons that was cut is the exception: it
/// ends the program until somebody deletes it.
void expect_it_loads(Day& day, std::string const& where)
{
    day.live_again();
    if (!day.alice.running()) {
        EXPECT_EQ(day.alice.report(), "Input past end of file") << where;
        EXPECT_LT(rows_of_buttons(day), 24U) << where;
        day.alice.files.erase("buttons.txt");
        day.live_again();
    }
    EXPECT_TRUE(day.alice.running()) << where << ": " << day.alice.report();
}

/// How a run may end: by itself, or with the error report.
void expect_an_end_as_told(Day& day, std::string const& where)
{
    EXPECT_FALSE(day.alice.running()) << where;
    if (day.alice.status() != 0) {
        EXPECT_EQ(day.alice.status(), 1) << where;
        EXPECT_THAT(day.alice.report(), AnyOf("Path/File access error", "Permission denied",
                                              "Disk full", "File not found"))
            << where;
    }
}

int operations_of_a_day()
{
    Day day;
    day.live();
    return day.alice.files.operations();
}

TEST(Faults, ADayWithoutFaultsEndsByItself)
{
    Day day;
    day.live();

    EXPECT_EQ(day.alice.status(), 0);
    EXPECT_EQ(day.alice.report(), "");
    EXPECT_GT(day.alice.files.operations(), 15);
}

class NthOperation : public testing::TestWithParam<MemoryFiles::Leaves> {};

TEST_P(NthOperation, WhateverOperationFailsTheNextStartLoads)
{
    int const operations = operations_of_a_day();
    for (int before = 0; before < operations; ++before) {
        auto const where = "operation " + std::to_string(before);
        Day day;
        day.alice.files.fail_after(before, GetParam());

        day.live();
        expect_an_end_as_told(day, where);

        expect_it_loads(day, where);
        EXPECT_THAT(day.alice.frmMain().userlist.rows(), Contains("[ROOM07\\BOB]=BOB")) << where;
    }
}

INSTANTIATE_TEST_SUITE_P(Faults, NthOperation,
                         testing::Values(MemoryFiles::Leaves::old_file, MemoryFiles::Leaves::half),
                         [](auto const& kind) {
                             return kind.param == MemoryFiles::Leaves::half ? "LeavingHalfAFile"
                                                                            : "LeavingTheOldFile";
                         });

TEST(Faults, AFirstRunInAReadOnlyFolderEndsWithItsReport)
{
    Day day;
    day.alice.files.read_only = true;

    day.live();

    EXPECT_EQ(day.alice.report(), "Permission denied");
    EXPECT_EQ(day.alice.status(), 1);
    EXPECT_THAT(day.alice.files.names(), testing::ElementsAre("vexlo.wav"));
}

TEST(Faults, AReadOnlyFolderThatHasEverythingLetsPeopleReceive)
{
    sim::Office office;
    auto& alice = office.peer("ROOM12", "alice", "Alice", {.users = known_users});
    office.settle();
    alice.person.leave();
    alice.files.read_only = true;

    alice.start();
    office.settle();
    office.segment.inject(message(bob_id, alice_id, "Bob> Hello"));
    office.settle();

    EXPECT_TRUE(alice.running()) << alice.report();
    EXPECT_TRUE(alice.popup(0).window.visible());
    EXPECT_FALSE(alice.files.has("logs/logtemp.txt"));
}

TEST(Faults, AFullDiskAtAnySizeLeavesFilesThatTheNextStartReads)
{
    for (std::size_t space = 0; space < 6000; space += 61) {
        auto const where = std::to_string(space) + " bytes";
        Day day;
        day.alice.files.space = space;

        day.live();
        expect_an_end_as_told(day, where);

        expect_it_loads(day, where);
    }
}

TEST(Faults, AnUnreadableLogOfTheLastRunEndsTheStartWithItsReport)
{
    sim::Office office;
    auto& alice = office.host("ROOM12", "alice");
    alice.prepare("Alice");
    alice.files.put("logs/logtemp.txt", "row\r\n");
    alice.files.unreadable = {"logs/logtemp.txt"};

    alice.start();

    EXPECT_EQ(alice.report(), "Permission denied");
    EXPECT_TRUE(alice.files.has("logs/logtemp.txt"));
}

TEST(Faults, ALogFolderThatCannotBeMadeEndsTheStartWithItsReport)
{
    sim::Office office;
    auto& alice = office.host("ROOM12", "alice");
    alice.prepare("Alice");
    alice.files.unwritable = {"logs"};

    alice.start();

    EXPECT_EQ(alice.status(), 1);
    EXPECT_EQ(alice.report(), "Permission denied");
}

TEST(Faults, DamagedFilesAreTakenForWhatTheyHold)
{
    sim::Chance chance(7);
    for (int round = 0; round < 200; ++round) {
        std::string damaged = sim::settings_file("Alice");
        std::string users = sim::lines(known_users);
        for (int hit = 0; hit < 8; ++hit) {
            damaged.at(chance.below(damaged.size())) = static_cast<char>(chance.below(256));
            users.at(chance.below(users.size())) = static_cast<char>(chance.below(256));
        }
        sim::Office office;
        auto& alice = office.host("ROOM12", "alice");
        alice.boxes.answer_all();
        alice.files.put("settings.txt", damaged);
        alice.files.put("users.txt", users);

        alice.start();

        if (!alice.running()) {
            // A flag that is no number, or a number that is none of 32 bits; or one port for both.
            EXPECT_THAT(alice.report(), AnyOf("Type mismatch", "Overflow", "")) << damaged;
        }
    }
}

TEST(Faults, AnEmptySettingsFileMeansTheUsualOptionsAndNoName)
{
    sim::Office office;
    auto& alice = office.host("ROOM12", "alice");
    alice.files.put("settings.txt", "");

    alice.start();
    office.settle();

    EXPECT_TRUE(alice.running());
    EXPECT_EQ(alice.frmMain().friendlyname, "");
    EXPECT_EQ(alice.frmMain().udplistenport, 4111);
    EXPECT_EQ(alice.frmMain().udpsendport, 4112);
    EXPECT_THAT(alice.boxes.shown(), IsEmpty());
}

TEST(Faults, SettingsThatWereCutAreMendedByTheNextSave)
{
    auto const whole = sim::settings_file("Alice", {{"SHOWOWN", "1"}});
    for (std::size_t length = 0; length <= whole.size(); length += 7) {
        sim::Office office;
        auto& alice = office.host("ROOM12", "alice");
        alice.boxes.answer_all();
        alice.files.put("settings.txt", std::string_view(whole).substr(0, length));

        alice.start();
        office.settle();

        if (alice.running()) {
            EXPECT_THAT(alice.files.content("settings.txt"), testing::EndsWith("End\r\n"));
        } else {
            EXPECT_EQ(alice.report(), "Type mismatch") << length;
        }
    }
}

} // namespace
