#include "tests/talk/talk.h"
#include "text/saved_folder.h"

namespace {

using namespace talk;
using platform::Answer;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class SavedMessage : public Talk {
protected:
    static constexpr auto folder = "/home/alice/vexlomessages";
    static constexpr auto path = "/home/alice/vexlomessages/vexlo-261115151802-bob.txt";

    SavedMessage()
    {
        alice.environment.desktop["userprofile"] = "/home/alice";
        alice.files.put("/home/alice/.profile", "");
        hear("BOB> lunch?\r\nALICE MEYER> no");
    }

    void save() { alice.person.click(popup, popup.printbtn); }

    std::string const rule = std::string(60, '-') + "\r\n";
    std::string const head = "\r\nVexlo Instant Messaging\r\n\r\n" + rule +
                             "To       : Alice Meyer\r\nFrom     : Bob\r\n"
                             "Date     : Sun Nov 15, 2026\r\nTime     : 03:18 pm\r\n" +
                             rule + "\r\nMessage:\r\n";
    std::string const tail = "\r\n" + rule + "\r\n\r\nSaved to:\r\n" + path + "\r\n\r\n";
    forms::Popup& popup = alice.popup(0);
};

TEST_F(SavedMessage, IsWrittenLineByLine)
{
    save();

    EXPECT_EQ(alice.files.content(path), head + "BOB> lunch?\r\nALICE MEYER> no\r\n\r\n" + tail);
}

TEST_F(SavedMessage, HoldsAReplyThatWasNotSent)
{
    alice.person.type_reply(popup, "well\r\nyes");

    save();

    EXPECT_EQ(alice.files.content(path), head + "BOB> lunch?\r\nALICE MEYER> no\r\n\r\n" +
                                             "Response (not sent):\r\nwell\r\nyes\r\n" + tail);
}

TEST_F(SavedMessage, IsOpenedAndLeavesTheWindowOpen)
{
    save();

    EXPECT_THAT(alice.outside.opened, ElementsAre(path));
    EXPECT_TRUE(popup.window.visible());
    EXPECT_EQ(popup.message.text(), "BOB> lunch?\r\nALICE MEYER> no");
    EXPECT_EQ(alice.frmMain().wins.row(0), "-");
    EXPECT_EQ(alice.frmMain().boxopen.value(), 0);
}

TEST_F(SavedMessage, MakesItsFolderWhenItIsMissing)
{
    EXPECT_FALSE(alice.files.has_folder(folder));
    save();
    EXPECT_TRUE(alice.files.has_folder(folder));

    alice.journal.switch_on();
    save();

    EXPECT_THAT(alice.journal.lines(), Not(testing::Contains(HasSubstr("make "))));
}

TEST_F(SavedMessage, OfTheSameSecondReplacesTheOther)
{
    save();
    alice.person.type_reply(popup, "yes");
    save();

    EXPECT_EQ(alice.files.names().count(path), 1U);
    EXPECT_THAT(alice.files.content(path), HasSubstr("Response (not sent):\r\nyes\r\n"));
    EXPECT_THAT(alice.outside.opened, ElementsAre(path, path));
}

TEST_F(SavedMessage, TakesTheTimeFromTheCaptionAndTheDateFromToday)
{
    alice.clock.set({2027, 3, 1, 9, 5, 7});

    save();

    auto const name = "/home/alice/vexlomessages/vexlo-270301090507-bob.txt";
    EXPECT_THAT(alice.files.content(name),
                HasSubstr("Date     : Mon Mar 1, 2027\r\nTime     : 03:18 pm\r\n"));
}

TEST_F(SavedMessage, OfTheRecallWindowTellsWhenTheMessageCame)
{
    auto& recalled = alice.forms().popuplast;
    open_history();
    alice.person.double_click_history(1);
    alice.clock.set({2026, 11, 15, 17, 40, 0});

    alice.person.click(recalled, recalled.printbtn);

    auto const name = "/home/alice/vexlomessages/vexlo-261115174000-bob.txt";
    EXPECT_THAT(alice.files.content(name),
                HasSubstr("From     : Bob\r\nDate     : Sun Nov 15, 2026\r\n"
                          "Time     : 03:18 pm\r\n"));
    EXPECT_TRUE(recalled.window.visible());
}

TEST_F(SavedMessage, TakesWhatThereIsOfAShortCaption)
{
    popup.window.caption = "3 pm";

    save();

    EXPECT_THAT(alice.files.content(path), HasSubstr("Time     : 3 pm\r\n"));
}

TEST_F(SavedMessage, HasProperNamesInItAndASmallOneInItsName)
{
    alice.frmMain().friendlyname = "ALICE VON MEYER";
    popup.messagefrom.set_caption("carl DUNN");

    save();

    auto const name = "/home/alice/vexlomessages/vexlo-261115151802-carl dunn.txt";
    EXPECT_THAT(alice.files.content(name),
                HasSubstr("To       : Alice Von Meyer\r\nFrom     : Carl Dunn\r\n"));
}

TEST_F(SavedMessage, GoesIntoTheDocumentsOfAProfileBelowUsers)
{
    alice.environment.variables["USERPROFILE"] = "/Users/alice";
    alice.files.put("/Users/alice/Documents/old.txt", "");

    save();

    EXPECT_THAT(alice.outside.opened,
                ElementsAre("/Users/alice/Documents/vexlomessages/vexlo-261115151802-bob.txt"));
}

TEST_F(SavedMessage, GoesIntoMyDocumentsOfAnyOtherProfile)
{
    alice.environment.variables["USERPROFILE"] = "/profiles/alice";
    alice.files.put("/profiles/alice/My Documents/old.txt", "");

    save();

    EXPECT_THAT(alice.outside.opened, ElementsAre("/profiles/alice/My Documents/vexlomessages/"
                                                  "vexlo-261115151802-bob.txt"));
}

TEST_F(SavedMessage, CannotBeCreatedBelowAFolderThatIsMissing)
{
    alice.environment.variables["USERPROFILE"] = "/nowhere/users";
    alice.boxes.will_answer(Answer::ok);

    save();

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("Cannot create file"));
}

struct Profile {
    std::string_view folder;
    std::string_view saved;
};

TEST(SavedFolder, AsksWhetherUsersStandsBehindTheFirstCharacter)
{
    for (auto const& [profile, saved] : {
             Profile{"/users/jo", "/users/jo/Documents/vexlomessages"},
             Profile{"C:/Users/jo", "C:/Users/jo/Documents/vexlomessages"},
             Profile{"d:users", "d:users/Documents/vexlomessages"},
             Profile{"/xUSERSx", "/xUSERSx/Documents/vexlomessages"},
             Profile{"users/jo", "users/jo/My Documents/vexlomessages"},
             Profile{"Users", "Users/My Documents/vexlomessages"},
             Profile{"users/users", "users/users/My Documents/vexlomessages"},
             Profile{"/home/jo", "/home/jo/My Documents/vexlomessages"},
             Profile{"/user/s", "/user/s/My Documents/vexlomessages"},
         }) {
        EXPECT_EQ(text::saved_folder_in_profile(profile), saved);
    }
    EXPECT_EQ(text::saved_folder_in_home("/home/users"), "/home/users/vexlomessages");
}

TEST_F(SavedMessage, ThatCannotBeWrittenIsToldByABox)
{
    alice.files.read_only = true;
    int flag = 0;
    alice.boxes.will_answer(Answer::ok).meanwhile([&] { flag = alice.frmMain().boxopen.value(); });

    save();

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("Cannot create file"));
    EXPECT_EQ(flag, 1);
    EXPECT_EQ(alice.frmMain().boxopen.value(), 0);
    EXPECT_TRUE(popup.window.visible());
    EXPECT_EQ(alice.frmMain().wins.row(0), "-");
    EXPECT_THAT(alice.outside.opened, IsEmpty());
}

TEST_F(SavedMessage, ThatNothingOpensIsToldByTheSameBox)
{
    alice.outside.refuses = true;
    alice.boxes.will_answer(Answer::ok);

    save();

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("Cannot create file"));
    EXPECT_TRUE(alice.files.has(path));
    EXPECT_TRUE(alice.running());
}

TEST_F(SavedMessage, LetsRowsWaitBehindTheBoxAndWakesThem)
{
    alice.files.read_only = true;
    alice.boxes.will_answer(Answer::ok)
        .meanwhile([&] {
            office.segment.inject_to(alice.host.name, datagram(bob_id, alice_id, "BOB> hello"));
        })
        .after(std::chrono::seconds(1));

    save();
    EXPECT_EQ(alice.frmMain().cue.size(), 1U);
    office.settle();

    EXPECT_THAT(popups_on_show(alice), ElementsAre(0, 1));
}

TEST_F(SavedMessage, OfANameThatIsNoFileNameIsToldByTheBoxToo)
{
    popup.messagefrom.set_caption("../../Bob");
    alice.boxes.will_answer(Answer::ok);

    save();

    EXPECT_THAT(alice.boxes.texts(), ElementsAre("Cannot create file"));
}

} // namespace
