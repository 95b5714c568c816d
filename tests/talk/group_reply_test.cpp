#include "tests/talk/talk.h"

namespace {

using namespace talk;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

/// The reply send without a popup that asks for it: it goes by what the main window shows.
class ReplyWindow : public Talk {
protected:
    ReplyWindow()
    {
        frmMain.temprec = "BOB> lunch?";
        frmMain.tempreply = "yes";
    }

    void reply(std::string_view text)
    {
        frmMain.txtSendMessage.set_text(text);
        alice.enter([&] { frmMain.cmdSend.run(); });
    }

    forms::FrmMain& frmMain = alice.frmMain();
};

TEST_F(ReplyWindow, SendsToTheUserOnTheList)
{
    alice.person.pick("Carl Dunn");

    reply("hello");

    EXPECT_THAT(sent_by(alice), ElementsAre(datagram(alice_id, carl_id, "hello")));
    EXPECT_EQ(frmMain.statustext.caption(), "Message sent to Carl Dunn");
    EXPECT_EQ(alice.log().back(), logged("Msg to   CARL DUNN", "hello"));
    EXPECT_EQ(last_row(alice)[3], "Carl Dunn");
}

TEST_F(ReplyWindow, SendsToAllWithAHeadOfItsOwn)
{
    alice.person.tick_all();

    reply("Back in ten minutes");

    EXPECT_THAT(sent_by(alice),
                ElementsAre(datagram(alice_id, "[ALL]",
                                     "To All (from ALICE MEYER):\r\nBack in ten minutes")));
    EXPECT_EQ(frmMain.statustext.caption(), "Message sent to ALL");
    EXPECT_EQ(last_row(alice)[3], "ALL");
    EXPECT_EQ(alice.log().back(),
              logged("Msg to   ALL", "To All (from ALICE MEYER):\r\nBack in ten minutes"));
    EXPECT_EQ(frmMain.Checkallusers.value(), 0);
    EXPECT_TRUE(frmMain.allusers.enabled);
}

TEST_F(ReplyWindow, SendsForAPopupFirst)
{
    alice.person.tick_all();
    alice.person.open_tab(1);
    hear("BOB> lunch?");

    alice.person.answer(alice.popup(0), "yes");

    EXPECT_THAT(sent_by(alice),
                ElementsAre(datagram(alice_id, bob_id, "BOB> lunch?\r\nALICE MEYER> yes")));
    EXPECT_EQ(frmMain.Checkallusers.value(), 1);
}

TEST_F(ReplyWindow, HasNothingToSendWithoutAText)
{
    alice.settings().resetports.set(1);
    alice.person.choose(alice.forms().menuform.autores, 0);
    int resets = 0;
    frmMain.Command6.attach([&] { ++resets; });
    frmMain.user = "";

    reply("");

    EXPECT_THAT(sent_by(alice), IsEmpty());
    EXPECT_EQ(resets, 1);
    EXPECT_EQ(frmMain.away.value(), 0);
    EXPECT_EQ(frmMain.user, alice_id);
}

TEST_F(ReplyWindow, SendsAtTheCharacterOneHundredAndTwelveAndSwallowsIt)
{
    frmMain.txtSendMessage.set_text("hello");
    alice.enter([&] {
        EXPECT_FALSE(frmMain.txtSendMessage.key_press(111));
        EXPECT_FALSE(frmMain.txtSendMessage.key_press(13));
        EXPECT_THAT(sent_by(alice), IsEmpty());
        EXPECT_TRUE(frmMain.txtSendMessage.key_press(112));
    });

    EXPECT_THAT(sent_by(alice), SizeIs(1));
}

TEST_F(ReplyWindow, PutsTheCaretBehindItsTextWhenItGetsTheFocus)
{
    frmMain.txtSendMessage.set_text("hello");
    frmMain.txtSendMessage.select(0, 5);

    frmMain.txtSendMessage.focus.set();

    EXPECT_EQ(frmMain.txtSendMessage.selection_start(), 5U);
    EXPECT_EQ(frmMain.txtSendMessage.selection_length(), 0U);
}

/// The same with the tab of the groups open.
class GroupReply : public ReplyWindow {
protected:
    GroupReply()
    {
        auto& forms = alice.forms();
        forms.groups.group.at(1).clear();
        for (auto const* member : {"Carl Dunn", "Gone", "bob"}) {
            forms.groups.group.at(1).add(member);
        }
        frmMain.List1.clear();
        frmMain.List1.add("FRIENDS" + std::string(30, ' ') + "1");
        alice.person.open_tab(1);
        alice.person.pick_group("FRIENDS");
        frmMain.statustext.set_caption("as it was");
    }
};

TEST_F(GroupReply, GoesToEveryMemberAndToNobodyForAnUnknownOne)
{
    reply("lunch?");

    EXPECT_THAT(sent_by(alice),
                testing::UnorderedElementsAre(datagram(alice_id, carl_id, "lunch?"),
                                              datagram(alice_id, "[---]", "lunch?"),
                                              datagram(alice_id, bob_id, "lunch?")));
}

TEST_F(GroupReply, UnlikeAGroupSendWhichSkipsTheUnknown)
{
    alice.person.send("lunch?");

    EXPECT_THAT(sent_by(alice), SizeIs(2));
    EXPECT_THAT(sent_by(alice), Not(Contains(testing::HasSubstr("[---]"))));
}

TEST_F(GroupReply, LeavesOneRowOfEachKindWithTheGroupAsItsTarget)
{
    auto const rows = alice.history().count();

    reply("lunch?");

    EXPECT_EQ(alice.log().back(), logged("Msg to   FRIENDS", "lunch?"));
    EXPECT_EQ(alice.history().count(), rows + 1);
    EXPECT_THAT(last_row(alice),
                ElementsAre("20261115151802", "11/15/26 03:18 pm", "Replied to", "FRIENDS", "BOB>",
                            "lunch?", "FRIENDS", "yes", "", "FRIENDS Msg 03:18 pm"));
    EXPECT_THAT(alice.files.content("logs/logtemp.txt"), testing::HasSubstr("Msg to   FRIENDS"));
}

TEST_F(GroupReply, LeavesTheStatusLineAlone)
{
    reply("lunch?");

    EXPECT_EQ(frmMain.statustext.caption(), "as it was");
}

TEST_F(GroupReply, EmptiesTheReplyAndGivesItTheFocus)
{
    auto const before = frmMain.txtSendMessage.focus.requests();

    reply("lunch?");

    EXPECT_TRUE(frmMain.txtSendMessage.empty());
    EXPECT_EQ(frmMain.txtSendMessage.focus.requests(), before + 1);
}

TEST_F(GroupReply, ResetsNoPorts)
{
    alice.settings().resetports.set(1);
    frmMain.Command6.attach([] { FAIL() << "not behind a group reply"; });

    reply("lunch?");
}

TEST_F(GroupReply, SendsNothingOnATabBeyond)
{
    int trims = 0;
    frmMain.cleanlog.attach([&] { ++trims; });
    auto const before = frmMain.txtSendMessage.focus.requests();
    frmMain.SSTab1.choose(2);

    reply("lunch?");

    EXPECT_THAT(sent_by(alice), IsEmpty());
    EXPECT_EQ(frmMain.txtSendMessage.text(), "lunch?");
    EXPECT_EQ(frmMain.txtSendMessage.focus.requests(), before + 1);
    EXPECT_EQ(trims, 1);
}

TEST_F(GroupReply, WithoutAGroupEndsTheProgramWithItsReport)
{
    frmMain.List1.choose(controls::ListBox::none);

    reply("lunch?");

    EXPECT_FALSE(alice.running());
    EXPECT_EQ(alice.report(), "Invalid procedure call or argument");
}

} // namespace
