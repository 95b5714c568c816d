#include "forms/forms.h"
#include "records/rolling_log.h"
#include "tests/unit/fakes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Key;

constexpr auto mirror = "app/logs/logtemp.txt";
constexpr auto dated = "app/logs/log261115151802.txt";

class TheLog : public testing::Test {
protected:
    void fill(int rows)
    {
        for (int row = 0; row < rows; ++row) {
            list.add("row " + std::to_string(row));
        }
    }

    unit::MemoryFiles files;
    unit::FixedClock clock;
    forms::Forms forms{unit::western};
    controls::ListBox& list = forms.log.lstMessages;
    records::RollingLog log{
        {.frmMain = forms.frmMain, .log = forms.log, .clock = clock, .files = files}, "app/logs"};
};

TEST_F(TheLog, MakesItsFolderWhenItIsMissing)
{
    log.make_folder();
    EXPECT_THAT(files.contents, ElementsAre(Key("app/logs")));

    files.contents["app/logs"] = "kept";
    log.make_folder();
    EXPECT_EQ(files.contents["app/logs"], "kept");
}

TEST_F(TheLog, IsMirroredWholeAfterEachRow)
{
    list.add("11-15-26:03:18p:Msg from BOB\t\r\nBob> hi\r\n---");
    forms.frmMain.cleanlog.run();
    EXPECT_EQ(files.read(mirror), "11-15-26:03:18p:Msg from BOB\t\r\nBob> hi\r\n---\r\n");

    list.add("11-15-26:03:18p:Network Connection Restored");
    forms.frmMain.cleanlog.run();
    EXPECT_EQ(files.read(mirror), "11-15-26:03:18p:Msg from BOB\t\r\nBob> hi\r\n---\r\n"
                                  "11-15-26:03:18p:Network Connection Restored\r\n");
    EXPECT_THAT(files.contents, ElementsAre(Key(mirror)));
}

TEST_F(TheLog, IsWrittenInOneGoHoweverLongItIs)
{
    fill(301);

    log.cleanlog();

    EXPECT_EQ(files.writes, 1);
}

TEST_F(TheLog, TheThreeHundredAndFirstRowIsStillMirrored)
{
    fill(301);

    log.cleanlog();

    EXPECT_EQ(list.count(), 301);
    EXPECT_THAT(files.contents, ElementsAre(Key(mirror)));
}

TEST_F(TheLog, TheThreeHundredAndSecondRowRollsItIntoADatedFile)
{
    fill(301);
    log.cleanlog();
    list.add("the last one");

    log.cleanlog();

    EXPECT_THAT(list.rows(), IsEmpty());
    ASSERT_THAT(files.contents, ElementsAre(Key(dated)));
    EXPECT_THAT(files.read(dated), testing::StartsWith("row 0\r\nrow 1\r\n"));
    EXPECT_THAT(files.read(dated), testing::EndsWith("row 300\r\nthe last one\r\n"));
}

TEST_F(TheLog, TwoRollsInOneSecondWriteOneFile)
{
    for (auto const* first : {"first roll", "second roll"}) {
        list.add(first);
        fill(300);
        log.cleanlog();
        list.add("one more");
        log.cleanlog();
    }

    ASSERT_THAT(files.contents, ElementsAre(Key(dated)));
    EXPECT_THAT(files.read(dated), testing::StartsWith("second roll\r\n"));
}

TEST_F(TheLog, WhatARunLeftBehindStandsBelowARowThatSaysTheOpposite)
{
    files.contents[mirror] = "11-14-26:09:00a:Msg to   BOB\t\r\nhi\r\n---\r\n";

    log.recover();

    EXPECT_THAT(list.rows(), ElementsAre("11-15-26:03:18p:Vexlo IM shutdown correctly.\t\r\n---",
                                         "11-14-26:09:00a:Msg to   BOB\t", "hi", "---"));
    EXPECT_THAT(files.contents, IsEmpty());
}

TEST_F(TheLog, ALongOneThatWasTakenUpRollsAtOnce)
{
    for (int line = 0; line < 301; ++line) {
        files.contents[mirror] += "an old line\r\n";
    }

    log.recover();
    log.cleanlog();

    EXPECT_THAT(list.rows(), IsEmpty());
    EXPECT_THAT(files.contents, ElementsAre(Key(dated)));
}

TEST_F(TheLog, AnEmptyMirrorStillTellsOfItself)
{
    files.contents[mirror] = "";

    log.recover();

    EXPECT_THAT(list.rows(), ElementsAre("11-15-26:03:18p:Vexlo IM shutdown correctly.\t\r\n---"));
    EXPECT_THAT(files.contents, IsEmpty());
}

TEST_F(TheLog, AfterAProperEndThereIsNothingToTakeUp)
{
    log.recover();

    EXPECT_THAT(list.rows(), IsEmpty());
}

TEST_F(TheLog, TheEndOfARunMovesAllRowsIntoADatedFile)
{
    list.add("a row");
    log.cleanlog();

    log.close();

    EXPECT_THAT(list.rows(), IsEmpty());
    ASSERT_THAT(files.contents, ElementsAre(Key(dated)));
    EXPECT_EQ(files.read(dated), "a row\r\n11-15-26:03:18p:Vexlo IM Closed.\t\r\n---\r\n");
}

TEST_F(TheLog, TheEndOfARunNeedsNoMirror)
{
    log.close();

    EXPECT_EQ(files.read(dated), "11-15-26:03:18p:Vexlo IM Closed.\t\r\n---\r\n");
}

TEST_F(TheLog, AFailureReachesTheCaller)
{
    files.read_only = true;
    list.add("a row");

    EXPECT_THROW(log.cleanlog(), text::Failure);
    EXPECT_THROW(log.close(), text::Failure);
}

} // namespace
