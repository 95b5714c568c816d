#include "platform/saved_texts.h"
#include "tests/desk/desk_flows.h"

namespace {

using namespace desk;
using namespace flows;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t change_settings = 0;
constexpr std::size_t find_other_users = 2;
constexpr std::size_t configure_groups = 4;
constexpr std::size_t check_for_updates = 6;
constexpr std::size_t view_logs = 8;
constexpr std::size_t saved_messages = 9;
constexpr std::size_t help = 11;
constexpr std::size_t online_help = 12;

class ToolsMenu : public OpenDesk {
protected:
    void choose(std::size_t entry) { alice.person.choose(menu, entry); }
    /// Alice hears this at once, without a round of the office.
    void hear(std::string_view body)
    {
        office.segment.inject_to(alice.host.name, message(bob_id, alice_id, body));
    }
    [[nodiscard]] bool sees_message() { return alice.popup(0).window.visible(); }

    forms::FrmMain& frmMain = alice.frmMain();
    forms::Settings& settings = alice.settings();
    controls::Menu& menu = alice.forms().menuform.toolsmenu;
};

TEST_F(ToolsMenu, HasFifteenEntriesOfWhichThreeAreHidden)
{
    Lines told;
    for (auto const& entry : menu.entries) {
        told.push_back((entry.visible ? "" : "hidden: ") + entry.caption);
        EXPECT_TRUE(entry.enabled) << entry.caption;
        EXPECT_FALSE(entry.checked) << entry.caption;
    }

    EXPECT_EQ(menu.caption, "Tools");
    EXPECT_THAT(told, ElementsAre("Change Settings", "hidden: -", "Find Other Users", "-",
                                  "Configure Groups", "-", "Check for Updates", "-", "View Logs",
                                  "Open saved msgs folder", "-", "Help", "On-line Help",
                                  "hidden: -", "hidden: Recall last popup"));
}

TEST_F(ToolsMenu, PopsUpAtTheSpotAndAtTheOptionsButton)
{
    int popped_up = 0;
    menu.popped_up = [&] { ++popped_up; };

    alice.person.click(frmMain.spotmenu);
    EXPECT_EQ(popped_up, 1);
    alice.person.click(frmMain.options);
    EXPECT_EQ(popped_up, 2);
}

TEST_F(ToolsMenu, SeparatorsAndTheHiddenRecallDoNothing)
{
    alice.forms().popuplast.message.set_text("BOB> Lunch?");
    alice.journal.switch_on();

    for (std::size_t const entry : {1U, 3U, 5U, 7U, 10U, 13U, 14U}) {
        alice.enter([&] { menu.choose(entry); });
    }

    EXPECT_THAT(alice.journal.lines(), IsEmpty());
    EXPECT_FALSE(alice.forms().popuplast.window.visible());
}

TEST_F(ToolsMenu, TheSettingsWindowIsModalAndStopsTheWatch)
{
    settings.Check1.set(1);
    bool checked_inside = false;
    while_open(settings.window, [&] {
        EXPECT_TRUE(settings.window.modal);
        EXPECT_TRUE(settings.window.visible());
        EXPECT_EQ(frmMain.boxopen.value(), 1);
        EXPECT_FALSE(frmMain.Timer1.enabled());
        EXPECT_EQ(settings.Check1.value(), 0);
        checked_inside = true;
        alice.person.click(settings.window, settings.cancelbtn);
    });

    choose(change_settings);

    EXPECT_TRUE(checked_inside);
    EXPECT_EQ(frmMain.boxopen.value(), 0);
    EXPECT_TRUE(frmMain.Timer1.enabled());
    EXPECT_FALSE(frmMain.Timer3.enabled());
}

TEST_F(ToolsMenu, MessagesWaitBehindTheSettingsWindow)
{
    while_open(settings.window, [&] {
        hear("BOB> Lunch?");
        office.run_for(10 * tick);
        EXPECT_FALSE(sees_message());
        EXPECT_FALSE(frmMain.Timer3.enabled());
        settings.window.hide();
    });

    choose(change_settings);
    EXPECT_TRUE(frmMain.Timer3.enabled());
    office.settle();

    EXPECT_TRUE(sees_message());
}

TEST_F(ToolsMenu, TheWatchRunsBeforeTheQueueWakesBehindTheSettingsWindow)
{
    Lines order;
    while_open(settings.window, [&] {
        hear("BOB> Lunch?");
        office.run_for(tick);
        frmMain.Timer1.switched.attach([&] {
            order.push_back("watch");
            EXPECT_EQ(frmMain.boxopen.value(), 0);
        });
        frmMain.Timer3.switched.attach([&] { order.push_back("queue"); });
        settings.window.hide();
    });

    choose(change_settings);

    EXPECT_THAT(order, ElementsAre("watch", "queue"));
}

TEST_F(ToolsMenu, FindOtherUsersReadsTheFilesAndAsksTheOffice)
{
    frmMain.allusers.add("Somebody Else");

    choose(find_other_users);
    EXPECT_THAT(frmMain.allusers.rows(), testing::Not(testing::Contains("Somebody Else")));
    EXPECT_THAT(sent_by(alice), ElementsAre(announcement(alice_id, "ALICE MEYER")));
    office.settle();

    EXPECT_THAT(frmMain.allusers.rows(), ElementsAre("Alice Meyer", "Bob", "Carl Dunn"));
}

TEST_F(ToolsMenu, FindOtherUsersEmptiesTheListFirst)
{
    Lines order;
    frmMain.loadusers.attach([&] {
        order.push_back("load");
        EXPECT_THAT(frmMain.allusers.rows(), IsEmpty());
    });
    frmMain.getusers.attach([&] { order.push_back("ask"); });

    choose(find_other_users);

    EXPECT_THAT(order, ElementsAre("load", "ask"));
}

TEST_F(ToolsMenu, TheGroupsWindowIsModalAndTheWatchGoesOn)
{
    auto& groups = alice.forms().groups.window;
    while_open(groups, [&] {
        EXPECT_TRUE(groups.modal);
        EXPECT_EQ(frmMain.boxopen.value(), 1);
        EXPECT_TRUE(frmMain.Timer1.enabled());
        hear("BOB> Lunch?");
        office.run_for(10 * tick);
        EXPECT_FALSE(sees_message());
        groups.hide();
    });

    choose(configure_groups);
    EXPECT_EQ(frmMain.boxopen.value(), 0);
    office.settle();

    EXPECT_TRUE(sees_message());
}

TEST_F(ToolsMenu, MessagesWaitDuringTheUpdateCheck)
{
    frmMain.updates.attach([&] {
        EXPECT_EQ(frmMain.boxopen.value(), 1);
        hear("BOB> Lunch?");
        office.run_for(10 * tick);
        EXPECT_FALSE(sees_message());
    });

    choose(check_for_updates);
    EXPECT_EQ(frmMain.boxopen.value(), 0);
    office.settle();

    EXPECT_TRUE(sees_message());
}

TEST_F(ToolsMenu, TheLogWindowIsShownBesideTheOthers)
{
    auto const& log = alice.forms().log.window;

    choose(view_logs);

    EXPECT_TRUE(log.visible());
    EXPECT_FALSE(log.modal);
    EXPECT_EQ(frmMain.boxopen.value(), 0);
}

TEST_F(ToolsMenu, TheFolderOfSavedMessagesIsMadeAndOpened)
{
    alice.environment.desktop["userprofile"] = "/home/alice/vexlo";
    std::string const folder = platform::savedmessagesfolder(alice.environment, alice.files);
    alice.files.erase_folder(folder);

    choose(saved_messages);

    EXPECT_TRUE(alice.files.has_folder(folder));
    EXPECT_THAT(alice.outside.opened, ElementsAre(folder));
}

TEST_F(ToolsMenu, AFolderOfSavedMessagesThatCannotBeMadeIsNotMentioned)
{
    alice.environment.variables["userprofile"] = "/nowhere";

    choose(saved_messages);

    EXPECT_TRUE(alice.running());
    EXPECT_THAT(alice.outside.opened, IsEmpty());
    EXPECT_THAT(alice.boxes.texts(), IsEmpty());
}

TEST_F(ToolsMenu, AFolderThatNothingOpensIsNotMentioned)
{
    alice.environment.desktop["userprofile"] = "/home/alice/vexlo";
    alice.outside.refuses = true;

    choose(saved_messages);

    EXPECT_TRUE(alice.running());
    EXPECT_THAT(alice.boxes.texts(), IsEmpty());
}

TEST_F(ToolsMenu, HelpOpensTheProgramsOwnHelp)
{
    choose(help);

    EXPECT_EQ(alice.outside.helps, 1);
    EXPECT_THAT(alice.outside.addresses, IsEmpty());
}

TEST_F(ToolsMenu, OnlineHelpIsTheHelpButtonOfTheMainWindow)
{
    choose(online_help);
    auto const by_menu = alice.outside.addresses;
    alice.person.click(frmMain.helpbtn);

    ASSERT_EQ(by_menu.size(), 1U);
    EXPECT_THAT(alice.outside.addresses, ElementsAre(by_menu[0], by_menu[0]));
    EXPECT_THAT(by_menu[0], testing::EndsWith("/help"));
}

} // namespace
