#include "tests/soak/company.h"
#include "tests/soak/inspection.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

/// Alice and three more are at work, and all is well.
class Inspection : public testing::Test {
protected:
    Inspection()
    {
        for (auto& each : company.colleagues) {
            each.come();
            company.calm();
        }
        soak::inspect_together(company);
    }

    void is_broken() { EXPECT_THROW(soak::inspect(alice), soak::Broken); }

    soak::Company company{1, 4};
    soak::Colleague& alice = company.colleagues.front();
};

TEST_F(Inspection, FindsTablesOfPopupsThatDisagree)
{
    alice.main().wins.remove(3);
    alice.main().wins.insert(3, "-");
    is_broken();
}

TEST_F(Inspection, FindsAPopupThatNobodyCounts)
{
    alice.peer.popup(0).window.show();
    is_broken();
}

TEST_F(Inspection, FindsRowsThatNobodyHandles)
{
    alice.main().cue.emplace_back("row");
    is_broken();
}

TEST_F(Inspection, FindsABoxThatNobodyForetold)
{
    alice.peer.boxes.show({.text = "Surprise"});
    is_broken();
}

TEST_F(Inspection, FindsALogThatGrows)
{
    for (int row = 0; row < 302; ++row) {
        alice.peer.forms().log.lstMessages.add("row");
    }
    is_broken();
}

TEST_F(Inspection, FindsALogThatIsNotOnTheDisk)
{
    alice.peer.forms().log.lstMessages.add("row");
    is_broken();
}

TEST_F(Inspection, FindsADirectoryThatIsNotOnTheDisk)
{
    alice.peer.files.put("users.txt", "");
    is_broken();
}

TEST_F(Inspection, FindsSomebodyTwiceInTheDirectory)
{
    alice.main().userlist.add(alice.identity + "=ALICE");
    is_broken();
}

TEST_F(Inspection, FindsAnErrorReport)
{
    alice.peer.enter([] { throw text::Failure("Bad news", 5, "test"); });
    is_broken();
}

TEST_F(Inspection, FindsThatSomebodyIsOnNobodysList)
{
    company.office.segment.faults.loss = 1;
    alice.main().allusers.clear();
    EXPECT_THROW(soak::inspect_together(company), soak::Broken);
}

TEST_F(Inspection, FindsThatAStartReadsSomethingElseThanWasLeft)
{
    alice.go_home();
    alice.peer.files.put("users.txt", "");
    EXPECT_THROW(alice.come(), soak::Broken);
}

TEST_F(Inspection, FindsAMessageThatHasNotCome)
{
    EXPECT_THROW(soak::require_received(alice, "Lunch?"), soak::Broken);
}

} // namespace
