#include "tests/talk/talk.h"

namespace {

using namespace talk;
using testing::ElementsAre;
using testing::StartsWith;

/// The dialog in which Alice names who her messages are forwarded to.
class ForwardDialog : public Talk {
protected:
    ForwardDialog() : Talk({.settings = {{"AUTORESPONSEALLOW", "1"}}})
    {
        alice.person.choose(alice.forms().menuform.toolsmenu, 0);
    }

    void open() { alice.person.click(settings.window, settings.btnAutoForward); }
    void pick(std::string_view name)
    {
        auto& list = dialog.fwdto;
        for (int index = 0; index < list.count(); ++index) {
            if (list.row(index) == name) {
                alice.person.click_row(dialog.window, list, index);
                return;
            }
        }
        FAIL() << name << " is not in the list";
    }
    void save() { alice.person.click(dialog.window, dialog.savebtn); }
    void save_with(std::string_view name)
    {
        open();
        pick(name);
        save();
    }
    [[nodiscard]] std::string const& stored() const { return settings.ar[3].text(); }

    forms::Settings& settings = alice.settings();
    forms::FwdToFrm& dialog = alice.forms().fwdtofrm;
};

TEST_F(ForwardDialog, OffersNobodyAndEveryoneButTheUser)
{
    ASSERT_THAT(alice.frmMain().allusers.rows(), ElementsAre("Alice Meyer", "Bob", "Carl Dunn"));

    open();

    EXPECT_THAT(dialog.fwdto.rows(), ElementsAre("None", "Bob", "Carl Dunn"));
    EXPECT_EQ(dialog.window.caption, "Forward to");
    EXPECT_EQ(dialog.savebtn.caption, "Save");
    EXPECT_EQ(dialog.cancelbtn.caption, "Cancel");
}

TEST_F(ForwardDialog, KnowsTheUserInAnyCase)
{
    settings.friendlyname.set_caption("carl DUNN");

    open();

    EXPECT_THAT(dialog.fwdto.rows(), ElementsAre("None", "Alice Meyer", "Bob"));
}

TEST_F(ForwardDialog, OffersNobodyAloneToAUserWhoIsAlone)
{
    alice.frmMain().allusers.clear();
    alice.frmMain().allusers.add("Alice Meyer");

    open();

    EXPECT_THAT(dialog.fwdto.rows(), ElementsAre("None"));
}

TEST_F(ForwardDialog, IsFilledAnewAtEachOpening)
{
    save_with("Bob");

    open();

    EXPECT_THAT(dialog.fwdto.rows(), ElementsAre("None", "Bob", "Carl Dunn"));
    EXPECT_EQ(dialog.fwdto.text(), "");
}

TEST_F(ForwardDialog, StandsInFrontOfAllOtherWindowsOfTheProgram)
{
    bool modal = false;
    dialog.window.wait_until_hidden.attach([&] { modal = dialog.window.modal; });

    open();

    EXPECT_TRUE(modal);
}

TEST_F(ForwardDialog, StoresTheNameBehindItsTwelveCharacters)
{
    save_with("Carl Dunn");

    EXPECT_EQ(stored(), "Forward to: Carl Dunn");
    EXPECT_EQ(settings.ar3temp.caption(), "Carl Dunn");
    EXPECT_EQ(settings.fwdchange.value(), 1);
    EXPECT_FALSE(dialog.window.visible());
}

TEST_F(ForwardDialog, EmptiesTheResponseForNobody)
{
    save_with("Carl Dunn");

    save_with("None");

    EXPECT_EQ(stored() + settings.ar3temp.caption(), "");
    EXPECT_EQ(settings.fwdchange.value(), 1);
    EXPECT_FALSE(dialog.window.visible());
}

TEST_F(ForwardDialog, StoresNoNameWhereNoRowIsPicked)
{
    open();

    save();

    EXPECT_EQ(stored(), "Forward to: ");
    EXPECT_EQ(settings.ar3temp.caption(), "");
    EXPECT_EQ(settings.fwdchange.value(), 1);
}

TEST_F(ForwardDialog, ChangesNothingWhenItIsCancelled)
{
    save_with("Carl Dunn");
    open();
    pick("Bob");

    alice.person.click(dialog.window, dialog.cancelbtn);

    EXPECT_EQ(stored(), "Forward to: Carl Dunn");
    EXPECT_EQ(settings.ar3temp.caption(), "Carl Dunn");
    EXPECT_EQ(settings.fwdchange.value(), 0);
    EXPECT_FALSE(dialog.window.visible());
}

TEST_F(ForwardDialog, NamesTheOneWhoGetsTheMessagesOnceTheSettingsAreSaved)
{
    save_with("Carl Dunn");
    alice.person.click(settings.window, settings.savebtn);
    office.settle();
    office.segment.forget();
    alice.person.choose(alice.forms().menuform.autores, 3);

    hear("BOB> lunch?");

    EXPECT_THAT(alice.files.content("settings.txt"), testing::HasSubstr("Forward to: Carl Dunn"));
    EXPECT_EQ(sent_by(alice).front(),
              datagram(bob_id, carl_id, "-- Msg auto fwded by ALICE MEYER --\r\nBOB> lunch?"));
}

TEST_F(ForwardDialog, IsForgottenWithTheSettingsThatAreCancelled)
{
    save_with("Carl Dunn");

    alice.person.click(settings.window, settings.cancelbtn);

    EXPECT_EQ(stored() + settings.ar3temp.caption(), "");
    EXPECT_FALSE(alice.forms().menuform.autores[3].visible);
}

} // namespace
