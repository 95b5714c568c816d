#include "tests/talk/working_day.h"

#include <set>

namespace {

using namespace talk;
using testing::Gt;

constexpr std::uint64_t seed = 20'261'116;
constexpr std::size_t messages = 20'000;
constexpr std::size_t hours = 8;

void expect_all_accounted_for(WorkingDay& day)
{
    for (Worker const& worker : day.workers) {
        EXPECT_TRUE(worker.running()) << worker.peer.host.name << ": " << worker.peer.report();
        worker.check_slots();
        worker.check_history();
        worker.check_logs();
        worker.check_sent(day.office.segment.texts_from(worker.peer.host.name));
    }
}

void expect_all_files_loaded(WorkingDay& day)
{
    std::set<std::string> const known{"buttons.txt",  "groups.txt", "hist.dat",
                                      "settings.txt", "users.txt",  "vexlo.wav"};
    int number = 0;
    for (Worker const& worker : day.workers) {
        auto& peer = worker.peer;
        for (std::string const& file : peer.files.names()) {
            EXPECT_TRUE(file.starts_with("logs/log") || known.contains(file)) << file;
        }
        EXPECT_EQ(peer.frmMain().friendlyname, Worker::name_of(number));
        EXPECT_EQ(peer.frmMain().userlist.count(), WorkingDay::people);
        EXPECT_EQ(peer.forms().groups.group[0].count(), 4);
        EXPECT_EQ(peer.frmMain().qb[1].caption.empty(), false);
        EXPECT_EQ(peer.settings().autoresmaster.value(), 1);
        ++number;
    }
}

TEST(WorkingDay, OfFiftyPeopleAndTwentyThousandMessagesLosesNothing)
{
    WorkingDay day(seed);

    for (std::size_t hour = 1; hour <= hours; ++hour) {
        day.work(hour * messages / hours);
        for (Worker const& worker : day.workers) {
            if (worker.running()) {
                worker.check_slots();
            }
        }
    }
    day.finish();

    EXPECT_GE(day.messages(), messages);
    EXPECT_THAT(day.done().answers, Gt(1000));
    EXPECT_THAT(day.done().answers_to_all, Gt(50));
    EXPECT_THAT(day.done().forwards, Gt(200));
    EXPECT_THAT(day.done().absences, Gt(100));
    EXPECT_THAT(day.done().crashes, Gt(10));
    EXPECT_THAT(day.done().leaves, Gt(10));
    expect_all_accounted_for(day);
    day.start_all_again();
    expect_all_accounted_for(day);
    expect_all_files_loaded(day);
}

TEST(WorkingDay, IsTheSameForTheSameSeed)
{
    constexpr std::size_t an_hour = 300;
    WorkingDay first(seed);
    WorkingDay second(seed);
    WorkingDay other(seed + 1);
    for (auto* const day : {&first, &second, &other}) {
        day->work(an_hour);
        day->finish();
    }

    EXPECT_EQ(first.done(), second.done());
    EXPECT_EQ(first.office.segment.texts(), second.office.segment.texts());
    EXPECT_NE(first.office.segment.texts(), other.office.segment.texts());
}

} // namespace
