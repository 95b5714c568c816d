#include "tap/letters.h"

#include "tests/sim/flows.h"

namespace {

using namespace flows;
using testing::ElementsAre;

/// The companion at Alice's desk, and what Alice's messenger sends for the same act.
class SameAct : public TwoPeople {
protected:
    [[nodiscard]] std::vector<std::string> sent() const
    {
        return office.segment.texts_from("ROOM12");
    }

    forms::FrmMain& frmMain = alice.frmMain();
};

TEST_F(SameAct, ALetterToOneUserIsTheMessengersDatagram)
{
    auto const letter = tap::letter_to("Bob", "Tea?\r\nNow?", frmMain);

    alice.person.send_to("Bob", "Tea?\r\nNow?");

    EXPECT_THAT(sent(), ElementsAre(letter.value().datagram));
}

TEST_F(SameAct, ALetterToEverybodyIsTheMessengersDatagram)
{
    auto const letter = tap::letter_to_all("Tea!", frmMain);

    alice.person.tick(frmMain.window, frmMain.Checkallusers);
    alice.person.send("Tea!");

    EXPECT_THAT(sent(), ElementsAre(letter.datagram));
}

TEST_F(SameAct, TheLettersToAGroupAreTheMessengersDatagrams)
{
    frmMain.List1.clear();
    frmMain.List1.add(forms::group_row("Team", "3"));
    alice.forms().groups.group.at(3).add_all({"CARL DUNN", "not found", "BOB"});
    auto const letters = tap::letters_to_group("team", "Cake!", alice.forms());

    alice.person.open_tab(1);
    alice.person.pick_group("Team");
    alice.person.send("Cake!");

    ASSERT_EQ(letters.value().size(), 2U);
    EXPECT_THAT(sent(), ElementsAre(letters->at(0).datagram, letters->at(1).datagram));
}

} // namespace
