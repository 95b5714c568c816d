#include "tests/talk/talk.h"

namespace {

using namespace talk;
using testing::ElementsAre;
using testing::IsEmpty;

/// A popup of Alice's, with a message from Bob. It counts how often it was drawn at once.
class Colouring : public Talk {
protected:
    Colouring()
    {
        popup.window.repaint.attach([this] { ++drawn; });
        popup.messagefrom.set_caption("Bob");
    }

    void show(std::string_view text)
    {
        popup.message.set_text(text);
        popup.colourmessage.run();
    }
    void show_as(std::string_view own, std::string_view sender, std::string_view text)
    {
        alice.frmMain().friendlyname = own;
        popup.messagefrom.set_caption(sender);
        show(text);
    }
    [[nodiscard]] Texts blacks() const { return painted(popup.message, black); }
    [[nodiscard]] Texts reds() const { return painted(popup.message, red); }

    forms::Popup& popup = alice.popup(0);
    int drawn = 0;
};

TEST_F(Colouring, PaintsAMessageOfAnotherRed)
{
    show("BOB> lunch?");

    EXPECT_THAT(reds(), ElementsAre("BOB> lunch?"));
    EXPECT_THAT(blacks(), IsEmpty());
}

TEST_F(Colouring, PaintsTheReadersTurnBlackUpToTheOthersName)
{
    show("ALICE MEYER> lunch?\r\nBOB> yes");

    EXPECT_THAT(blacks(), ElementsAre("ALICE MEYER> lunch?\r\n"));
    EXPECT_THAT(reds(), ElementsAre("BOB> yes"));
}

TEST_F(Colouring, PaintsEachOfTheReadersTurns)
{
    show("BOB> a\r\nALICE MEYER> b\r\nBOB> c\r\nALICE MEYER> d\r\nBOB> e");

    EXPECT_THAT(blacks(), ElementsAre("ALICE MEYER> b\r\n", "ALICE MEYER> d\r\n"));
    EXPECT_THAT(reds(), ElementsAre("BOB> a\r\n", "BOB> c\r\n", "BOB> e"));
}

TEST_F(Colouring, LeavesTheReadersLastTurnRed)
{
    show("BOB> a\r\nALICE MEYER> b\r\nBOB> c\r\nALICE MEYER> d");

    EXPECT_THAT(blacks(), ElementsAre("ALICE MEYER> b\r\n"));
    EXPECT_THAT(reds(), ElementsAre("BOB> a\r\n", "BOB> c\r\nALICE MEYER> d"));
}

TEST_F(Colouring, DrawsTheWindowAtOnceWhenThereIsNoFurtherTurnOfTheReader)
{
    show("BOB> lunch?");
    EXPECT_EQ(drawn, 1);

    show("ALICE MEYER> lunch?\r\nBOB> yes");
    EXPECT_EQ(drawn, 2);
}

TEST_F(Colouring, DoesNotDrawTheWindowWhenTheOtherIsMissing)
{
    show("BOB> lunch?\r\nALICE MEYER> yes");

    EXPECT_EQ(drawn, 0);
}

TEST_F(Colouring, LooksForBothNamesInAnyCase)
{
    show("Alice Meyer> lunch?\r\nbOb> yes");

    EXPECT_THAT(blacks(), ElementsAre("Alice Meyer> lunch?\r\n"));
}

TEST_F(Colouring, LooksForLettersOfTheOfficeInAnyCase)
{
    show_as("J\xD6RG",
            "Z\xF6"
            "e",
            "j\xF6rg> lunch?\r\nZ\xD6"
            "E> yes");

    EXPECT_THAT(blacks(), ElementsAre("j\xF6rg> lunch?\r\n"));
}

TEST_F(Colouring, TakesEveryMentionOfTheReaderForATurn)
{
    show("BOB> ask Alice Meyer, says BOB");

    EXPECT_THAT(blacks(), ElementsAre("Alice Meyer, says "));
}

TEST_F(Colouring, FindsTheOtherInsideTheReadersOwnName)
{
    show_as("ANNA BERG", "Berg", "ANNA BERG> lunch?\r\nBERG> yes");

    EXPECT_THAT(blacks(), ElementsAre("ANNA "));
    EXPECT_THAT(reds(), ElementsAre("BERG> lunch?\r\nBERG> yes"));
}

TEST_F(Colouring, FindsTheReaderInsideTheOthersName)
{
    show_as("ANN", "Anna", "ANN> lunch?\r\nANNA> yes, Ann\r\nANNA> no");

    EXPECT_THAT(blacks(), ElementsAre("ANN> lunch?\r\n", "Ann\r\n"));
}

TEST_F(Colouring, PaintsATurnThatNamesTheReaderAgainInOneStretch)
{
    show("ALICE MEYER> I, Alice Meyer, say\r\nBOB> yes");

    EXPECT_THAT(blacks(), ElementsAre("ALICE MEYER> I, Alice Meyer, say\r\n"));
}

TEST_F(Colouring, EndsForAReaderWithoutAName)
{
    show_as("", "Bob", "BOB> lunch?\r\n> yes");

    EXPECT_THAT(reds(), ElementsAre("BOB> lunch?\r\n> yes"));
    EXPECT_EQ(drawn, 1);
}

TEST_F(Colouring, FindsNobodyWithoutAName)
{
    show_as("ALICE", "", "ALICE> lunch?\r\n> yes");

    EXPECT_THAT(reds(), ElementsAre("ALICE> lunch?\r\n> yes"));
    EXPECT_EQ(drawn, 0);
}

TEST_F(Colouring, HasNothingToDoForAnEmptyText)
{
    show("");

    EXPECT_THAT(popup.message.runs(), IsEmpty());
    EXPECT_EQ(drawn, 1);
}

TEST_F(Colouring, RunsForEveryMessageThatComes)
{
    hear("ALICE MEYER> lunch?\r\nBOB> yes");

    EXPECT_THAT(blacks(), ElementsAre("ALICE MEYER> lunch?\r\n"));
}

TEST_F(Colouring, RunsAgainWhenAPersonClicksTheLabelAboveTheReply)
{
    show("CAROL> lunch?\r\nBOB> yes");
    alice.frmMain().friendlyname = "CAROL";

    alice.enter([&] { popup.Label1.clicked.run(); });

    EXPECT_THAT(blacks(), ElementsAre("CAROL> lunch?\r\n"));
}

/// The history window paints the same way, but for the answers under their questions.
class ColouringOfTheHistory : public Talk {
protected:
    ColouringOfTheHistory()
    {
        form.window.repaint.attach([this] { ++drawn; });
    }

    void show(std::string_view kind, std::string_view text, std::string_view answer = {})
    {
        auto row = row_from("Bob", "BOB>", text);
        row[2] = kind;
        row[7] = answer;
        keep(row);
    }
    [[nodiscard]] Texts blacks() const { return painted(form.message, black); }

    forms::HistoryFrm& form = alice.forms().historyfrm;
    int drawn = 0;
};

TEST_F(ColouringOfTheHistory, LeavesTheReadersLastTurnOfAReceivedMessageRed)
{
    show("From", "a\r\nALICE MEYER> b\r\nBOB> c\r\nALICE MEYER> d");

    EXPECT_THAT(blacks(), ElementsAre("ALICE MEYER> b\r\n"));
    EXPECT_EQ(drawn, 0);
}

TEST_F(ColouringOfTheHistory, ShowsTheAnswerBlackUnderTheQuestion)
{
    for (auto const* kind : {"Replied to", "Auto Rep to"}) {
        show(kind, "lunch?", "yes");

        EXPECT_EQ(form.message.text(), "BOB> lunch?\r\nALICE MEYER> yes");
        EXPECT_THAT(blacks(), ElementsAre("ALICE MEYER> yes"));
    }
    EXPECT_EQ(drawn, 2);
}

TEST_F(ColouringOfTheHistory, PaintsAnAnswerThatNamesTheReaderAgainInOneStretch)
{
    show("Replied to", "lunch?", "Alice Meyer is hungry");

    EXPECT_THAT(blacks(), ElementsAre("ALICE MEYER> Alice Meyer is hungry"));
}

TEST_F(ColouringOfTheHistory, EndsAnAnswerWhereItNamesTheOther)
{
    show("Replied to", "lunch?", "yes, Bob");

    EXPECT_THAT(blacks(), ElementsAre("ALICE MEYER> yes, "));
}

TEST_F(ColouringOfTheHistory, PaintsTheTurnsBeforeTheAnswerToo)
{
    show("Replied to", "a\r\nALICE MEYER> b\r\nBOB> c", "d");

    EXPECT_THAT(blacks(), ElementsAre("ALICE MEYER> b\r\n", "ALICE MEYER> d"));
    EXPECT_THAT(painted(form.message, red), ElementsAre("BOB> a\r\n", "BOB> c\r\n"));
}

TEST_F(ColouringOfTheHistory, LooksForThePartyOfTheRow)
{
    auto row = row_from("Carl Dunn", "BOB>", "a\r\nALICE MEYER> b\r\nBOB> c\r\nCARL DUNN> d");
    keep(row);

    EXPECT_THAT(blacks(), ElementsAre("ALICE MEYER> b\r\nBOB> c\r\n"));
}

TEST_F(ColouringOfTheHistory, EndsForAReaderWithoutAName)
{
    alice.frmMain().friendlyname = "";

    show("Replied to", "lunch?", "yes");

    EXPECT_EQ(form.message.text(), "BOB> lunch?\r\n> yes");
    EXPECT_THAT(blacks(), IsEmpty());
}

TEST_F(ColouringOfTheHistory, LeavesTheCaretBehindTheText)
{
    show("From", "lunch?");

    EXPECT_EQ(form.message.selection_start(), 11U);
    EXPECT_EQ(form.message.selection_length(), 0U);
}

} // namespace
