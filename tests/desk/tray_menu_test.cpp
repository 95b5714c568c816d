#include "tests/desk/desk_flows.h"

namespace {

using namespace desk;
using namespace flows;
using controls::Window;
using Image = platform::TrayIcon::Image;
using testing::ElementsAre;

constexpr std::size_t close_all = 0;
constexpr std::size_t recall = 1;
constexpr std::size_t toggle = 2;
constexpr std::size_t off = 4;

sim::Setup with_auto_respond()
{
    return {.settings = {{"AUTORESPONSEALLOW", "1"},
                         {"AUTORESPONSEMSG1", ""},
                         {"AUTORESPONSEMSG3", "Forward to: Bob"}}};
}

class TrayMenu : public OpenDesk {
protected:
    explicit TrayMenu(sim::Setup setup = with_auto_respond()) : OpenDesk(std::move(setup)) {}

    void get_message()
    {
        bob.person.send_to("Alice Meyer", "Lunch?");
        office.settle();
    }
    void choose(std::size_t entry) { alice.person.choose(menu, entry); }

    forms::FrmMain& frmMain = alice.frmMain();
    controls::Menu& menu = alice.forms().menuform.closepopups;
    controls::Menu& answers = alice.forms().menuform.autores;
};

class TrayMenuWithoutAutoRespond : public TrayMenu {
protected:
    TrayMenuWithoutAutoRespond() : TrayMenu(sim::Setup{}) {}
};

Lines captions(controls::Menu const& menu)
{
    Lines all;
    for (auto const& entry : menu.entries) {
        all.push_back(entry.caption);
    }
    return all;
}

std::vector<std::size_t> checked(controls::Menu const& menu)
{
    std::vector<std::size_t> all;
    for (std::size_t index = 0; index < menu.entries.size(); ++index) {
        if (menu[index].checked) {
            all.push_back(index);
        }
    }
    return all;
}

TEST_F(TrayMenu, HasThreeEntries)
{
    EXPECT_THAT(captions(menu),
                ElementsAre("Close all popups", "Recall last popup", "Enable Auto Respond"));
}

TEST_F(TrayMenu, ClosesAllPopupsOnceThereIsOne)
{
    EXPECT_TRUE(menu[close_all].visible);
    EXPECT_FALSE(menu[close_all].enabled);
    get_message();
    get_message();
    ASSERT_TRUE(menu[close_all].enabled);

    choose(close_all);

    EXPECT_FALSE(alice.popup(0).window.visible());
    EXPECT_FALSE(alice.popup(1).window.visible());
    EXPECT_EQ(frmMain.pucount.caption(), "10");
    EXPECT_FALSE(menu[close_all].enabled);
}

TEST_F(TrayMenu, TheRecallEntryStaysGreyWhateverThereIsToRecall)
{
    get_message();
    alice.person.click(frmMain.history);
    alice.person.double_click_history(1);
    ASSERT_TRUE(alice.forms().popuplast.window.visible());

    EXPECT_TRUE(menu[recall].visible);
    EXPECT_FALSE(menu[recall].enabled);
    EXPECT_THROW(choose(recall), sim::Impossible);
}

TEST_F(TrayMenu, TheRecallEntryWouldShowTheRecallWindowIfItHasAMessage)
{
    auto& last = alice.forms().popuplast;
    alice.enter([this] { menu.choose(recall); });
    EXPECT_FALSE(last.window.visible());

    last.message.set_text("BOB> Lunch?");
    alice.enter([this] { menu.choose(recall); });
    EXPECT_TRUE(last.window.visible());
}

TEST_F(TrayMenuWithoutAutoRespond, TheToggleIsNeitherSeenNorLive)
{
    EXPECT_FALSE(menu[toggle].visible);
    EXPECT_FALSE(menu[toggle].enabled);
}

TEST_F(TrayMenuWithoutAutoRespond, TheOptionBringsTheToggleLiveAtTheSave)
{
    alice.settings().autoresmaster.set(1);
    EXPECT_FALSE(menu[toggle].visible);

    alice.enter([this] { frmMain.saveallsettings.run(); });

    EXPECT_TRUE(menu[toggle].visible);
    EXPECT_TRUE(menu[toggle].enabled);
}

TEST_F(TrayMenu, WithoutTheOptionTheToggleGoesAtTheSave)
{
    ASSERT_TRUE(menu[toggle].visible);
    ASSERT_TRUE(menu[toggle].enabled);
    alice.settings().autoresmaster.set(0);

    alice.enter([this] { frmMain.saveallsettings.run(); });

    EXPECT_FALSE(menu[toggle].visible);
    EXPECT_FALSE(menu[toggle].enabled);
}

TEST_F(TrayMenu, TheToggleSendsWhoIsThereAwayAndHidesTheMainWindow)
{
    choose(toggle);

    EXPECT_TRUE(frmMain.away.on());
    EXPECT_EQ(frmMain.window.state, Window::State::minimised);
    EXPECT_FALSE(frmMain.window.visible());
    EXPECT_EQ(menu[toggle].caption, "Disable Auto Respond");
    EXPECT_EQ(alice.tray_icon.image, Image::away);
    EXPECT_EQ(frmMain.Label5.caption(), "Auto Respond On: I'm away from my desk");
    EXPECT_TRUE(frmMain.Label5.visible);
    EXPECT_TRUE(frmMain.Frame2.visible);
    EXPECT_TRUE(alice.forms().historyfrm.autores.visible);
}

TEST_F(TrayMenu, TheWindowThatTheToggleHidDoesNotCountAsMinimised)
{
    choose(toggle);

    // So the watch doesn't hide it again, and the history window's button still offers to hide it.
    EXPECT_NE(frmMain.minimized, "yes");
    EXPECT_EQ(alice.forms().historyfrm.showmain.caption, "Hide Main");
}

TEST_F(TrayMenu, TheToggleAnswersWithTheResponseInForce)
{
    alice.person.choose(answers, 2);
    alice.person.choose(answers, off);

    choose(toggle);
    get_message();

    EXPECT_THAT(sent_by(alice), ElementsAre(message(alice_id, bob_id,
                                                    "BOB> Lunch?\r\nALICE MEYER> (Auto Resp) "
                                                    "I'm in a meeting")));
}

TEST_F(TrayMenu, TheToggleLeavesTheMarksOfTheOtherMenu)
{
    choose(toggle);
    EXPECT_THAT(checked(answers), ElementsAre(off));

    choose(toggle);
    EXPECT_THAT(checked(answers), ElementsAre(off));
}

TEST_F(TrayMenu, TheToggleBringsWhoIsBackToTheMainWindow)
{
    choose(toggle);

    choose(toggle);

    EXPECT_FALSE(frmMain.away.on());
    EXPECT_TRUE(frmMain.window.visible());
    EXPECT_EQ(frmMain.window.state, Window::State::normal);
    EXPECT_EQ(frmMain.minimized, "no");
    EXPECT_EQ(menu[toggle].caption, "Enable Auto Respond");
    EXPECT_EQ(alice.tray_icon.image, Image::normal);
    EXPECT_FALSE(frmMain.Label5.visible);
}

TEST_F(TrayMenu, WhoIsBackSeesTheMessagesThatWaitAtTheIcon)
{
    get_message();
    choose(toggle);
    ASSERT_EQ(alice.tray_icon.image, Image::away);

    choose(toggle);

    EXPECT_EQ(alice.tray_icon.image, Image::waiting);
}

TEST_F(TrayMenu, TheToggleOffersToEndWhatTheOtherMenuHasBegun)
{
    alice.person.choose(answers, 0);
    ASSERT_EQ(menu[toggle].caption, "Disable Auto Respond");

    choose(toggle);

    EXPECT_FALSE(frmMain.away.on());
    EXPECT_THAT(checked(answers), ElementsAre(0U)) << "nothing but its own entries moves the mark";
}

using AnswersMenu = TrayMenu;

TEST_F(AnswersMenu, OffersTheResponsesThatHaveAText)
{
    EXPECT_EQ(answers.caption, "Autorespond");
    EXPECT_THAT(captions(answers),
                ElementsAre("I'm away from my desk", "I'm out of the office", "I'm in a meeting",
                            "Forward to: Bob", "Auto Respond Off"));
    EXPECT_TRUE(answers[0].visible);
    EXPECT_FALSE(answers[1].visible);
    EXPECT_TRUE(answers[2].visible);
    EXPECT_TRUE(answers[3].visible);
    EXPECT_TRUE(answers[off].visible);
    EXPECT_THAT(checked(answers), ElementsAre(off));
}

TEST_F(AnswersMenu, PopsUpAtTheButtonOfTheMainWindow)
{
    int popped_up = 0;
    answers.popped_up = [&] { ++popped_up; };

    alice.person.click(frmMain.autorespond);

    EXPECT_EQ(popped_up, 1);
}

TEST_F(TrayMenuWithoutAutoRespond, TheAnswersMenuHasNoButton)
{
    EXPECT_THROW(alice.person.click(frmMain.autorespond), sim::Impossible);
}

TEST_F(AnswersMenu, AnEntryPutsItsTextIntoForce)
{
    alice.person.choose(answers, 2);

    EXPECT_THAT(checked(answers), ElementsAre(2U));
    EXPECT_EQ(alice.settings().autorespond.text(), "I'm in a meeting");
    EXPECT_TRUE(frmMain.away.on());
    EXPECT_EQ(frmMain.Label5.caption(), "Auto Respond On: I'm in a meeting");
    EXPECT_TRUE(frmMain.Label5.visible);
    EXPECT_TRUE(frmMain.window.visible()) << "unlike the icon's menu it leaves the window";
}

TEST_F(AnswersMenu, AnotherEntryTakesTheMarkOver)
{
    alice.person.choose(answers, 2);

    alice.person.choose(answers, 3);

    EXPECT_THAT(checked(answers), ElementsAre(3U));
    EXPECT_EQ(alice.settings().autorespond.text(), "Forward to: Bob");
    EXPECT_EQ(frmMain.Label5.caption(), "Auto Respond On: Forward to: Bob");
}

TEST_F(AnswersMenu, AnEntryTakesTheTextOfTheSettingsNotItsCaption)
{
    alice.settings().ar[0].set_text("Back soon");

    alice.person.choose(answers, 0);

    EXPECT_EQ(alice.settings().autorespond.text(), "Back soon");
}

TEST_F(AnswersMenu, OffEndsItAndWritesTheBannerThatNobodySees)
{
    alice.person.choose(answers, 2);

    alice.person.choose(answers, off);

    EXPECT_FALSE(frmMain.away.on());
    EXPECT_THAT(checked(answers), ElementsAre(off));
    EXPECT_EQ(frmMain.Label5.caption(), "Auto Respond On: I'm in a meeting");
    EXPECT_FALSE(frmMain.Label5.visible);
    EXPECT_EQ(alice.tray_icon.image, Image::normal);
}

TEST_F(AnswersMenu, AReloadLeavesAutoRespondOff)
{
    alice.person.choose(answers, 2);

    alice.enter([this] { frmMain.loadusers.run(); });

    EXPECT_FALSE(frmMain.away.on());
    EXPECT_THAT(checked(answers), ElementsAre(off));
    EXPECT_EQ(menu[toggle].caption, "Enable Auto Respond");
}

} // namespace
