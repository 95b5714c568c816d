#include "tests/talk/talk.h"

namespace {

using namespace talk;
using platform::TrayIcon;
using testing::ElementsAre;

/// Alice's switch "I am away": every way in, every way out, and what shows it.
class AwaySwitch : public Talk {
protected:
    AwaySwitch()
        : Talk({.settings = {{"AUTORESPONSEALLOW", "1"},
                             {"AUTORESPONSEMSG3", "Forward to: Carl Dunn"}}})
    {
    }

    void choose(std::size_t entry) { alice.person.choose(responses, entry); }
    /// The entries of the menu that have the mark.
    [[nodiscard]] std::vector<std::size_t> marked() const
    {
        std::vector<std::size_t> entries;
        for (std::size_t entry = 0; entry < responses.entries.size(); ++entry) {
            if (responses[entry].checked) {
                entries.push_back(entry);
            }
        }
        return entries;
    }
    void expect_on(std::string_view response)
    {
        EXPECT_EQ(frmMain.away.value(), 1);
        EXPECT_EQ(frmMain.Label5.caption(), "Auto Respond On: " + std::string(response));
        EXPECT_TRUE(frmMain.Label5.visible && frmMain.Frame2.visible);
        EXPECT_TRUE(alice.forms().historyfrm.autores.visible);
        EXPECT_EQ(toggle.caption, "Disable Auto Respond");
    }
    void expect_off()
    {
        EXPECT_EQ(frmMain.away.value(), 0);
        EXPECT_FALSE(frmMain.Label5.visible || frmMain.Frame2.visible);
        EXPECT_FALSE(alice.forms().historyfrm.autores.visible);
        EXPECT_EQ(toggle.caption, "Enable Auto Respond");
    }
    /// Alice goes away, does this, and is back.
    template <typename Action>
    void expect_back_by(char const* what, Action const& action)
    {
        SCOPED_TRACE(what);
        choose(1);
        expect_on("I'm out of the office");
        action();
        expect_off();
        EXPECT_THAT(marked(), ElementsAre(4));
    }
    /// The same, behind a message from Bob to all.
    template <typename Action>
    void expect_back_by_popup(char const* what, Action const& action)
    {
        hear("BOB> (To All) cake!", bob_id, "[ALL]");
        expect_back_by(what, action);
    }

    forms::FrmMain& frmMain = alice.frmMain();
    controls::Menu& responses = alice.forms().menuform.autores;
    controls::MenuEntry const& toggle = alice.forms().menuform.closepopups[2];
    forms::Popup& popup = alice.popup(0);
};

TEST_F(AwaySwitch, GoesOnByEveryResponseOfTheMenu)
{
    Texts const stored{"I'm away from my desk", "I'm out of the office", "I'm in a meeting",
                       "Forward to: Carl Dunn"};
    for (std::size_t entry = 0; entry < stored.size(); ++entry) {
        choose(entry);

        expect_on(stored[entry]);
        EXPECT_EQ(alice.settings().autorespond.text(), stored[entry]);
        EXPECT_THAT(marked(), ElementsAre(entry));
        EXPECT_EQ(alice.tray_icon.image, TrayIcon::Image::away);
        EXPECT_EQ(alice.tray_icon.tip, "Vexlo IM AWAY");
    }
}

TEST_F(AwaySwitch, GoesOffByTheLastEntry)
{
    choose(2);

    choose(4);

    expect_off();
    EXPECT_THAT(marked(), ElementsAre(4));
    EXPECT_EQ(alice.tray_icon.image, TrayIcon::Image::normal);
    EXPECT_EQ(alice.tray_icon.tip, "Vexlo IM");
}

TEST_F(AwaySwitch, WritesItsBannerAlsoWhenItHasJustHiddenIt)
{
    choose(2);
    frmMain.Label5.set_caption("something else");

    choose(4);

    EXPECT_EQ(frmMain.Label5.caption(), "Auto Respond On: I'm in a meeting");
    EXPECT_FALSE(frmMain.Label5.visible);
}

TEST_F(AwaySwitch, LeavesTheIconOfWaitingMessagesWhenItGoesOff)
{
    hear("BOB> lunch?");
    choose(0);
    EXPECT_EQ(alice.tray_icon.image, TrayIcon::Image::away);

    choose(4);

    EXPECT_EQ(alice.tray_icon.image, TrayIcon::Image::waiting);
}

TEST_F(AwaySwitch, LosesItsIconWithTheLastPopupThatCloses)
{
    hear("BOB> lunch?");
    choose(0);

    alice.person.click(popup, popup.Command1);

    EXPECT_EQ(alice.tray_icon.image, TrayIcon::Image::normal);
    EXPECT_EQ(frmMain.away.value(), 1);
}

TEST_F(AwaySwitch, IsABoxOfTheMainWindowThatTheMenusMarksDoNotFollow)
{
    alice.person.tick(frmMain.window, frmMain.away);

    expect_on("I'm away from my desk");
    EXPECT_THAT(marked(), ElementsAre(4));

    choose(1);
    alice.person.tick(frmMain.window, frmMain.away);

    expect_off();
    EXPECT_THAT(marked(), ElementsAre(1));
}

TEST_F(AwaySwitch, IsToggledByTheTrayThatTheMenusMarksDoNotFollow)
{
    auto const& menu = alice.forms().menuform.closepopups;
    alice.person.choose(menu, 2);

    expect_on("I'm away from my desk");
    EXPECT_THAT(marked(), ElementsAre(4));
    EXPECT_FALSE(frmMain.window.visible());

    alice.person.choose(menu, 2);

    expect_off();
    EXPECT_TRUE(frmMain.window.visible());
}

TEST_F(AwaySwitch, TakesTheResponseLastInForceWhereNoneIsChosen)
{
    choose(2);
    choose(4);

    alice.person.tick(frmMain.window, frmMain.away);

    expect_on("I'm in a meeting");
}

TEST_F(AwaySwitch, GoesOffByTyping)
{
    expect_back_by("a letter", [this] { alice.person.type("H"); });
    expect_back_by("the clear button", [this] { alice.person.click(frmMain.Command3); });
}

TEST_F(AwaySwitch, GoesOffByEverySendOfTheMainWindow)
{
    auto const& send = frmMain.sendbtn;
    frmMain.messagetext.set_text("Hello");
    expect_back_by("to nobody", [&] { alice.person.click(send); });
    alice.person.pick("Bob");
    expect_back_by("to one", [&] { alice.person.click(send); });
    expect_back_by("of nothing", [&] { alice.person.click(send); });
    frmMain.messagetext.set_text("Hello");
    alice.person.tick_all();
    expect_back_by("to all", [&] { alice.person.click(send); });
    frmMain.messagetext.set_text("Hello");
    alice.person.open_tab(1);
    expect_back_by("to a group of nobody", [&] {
        alice.boxes.will_answer(platform::Answer::ok);
        alice.person.click(send);
    });
}

TEST_F(AwaySwitch, GoesOffByAQuickButton)
{
    expect_back_by("that waits", [this] { alice.person.click(frmMain.qb[1]); });
}

TEST_F(AwaySwitch, GoesOffByWhatIsDoneInAPopup)
{
    expect_back_by_popup("a reply", [this] { alice.person.answer(popup, "mine!"); });
    expect_back_by_popup("a reply to all", [this] {
        popup.Check1.set(1);
        alice.person.answer(popup, "mine!");
    });
    expect_back_by_popup("a quick answer", [this] { alice.person.click(popup, popup.quick(13)); });
    expect_back_by_popup("a forward", [this] { alice.person.click(popup, popup.fwd); });
}

TEST_F(AwaySwitch, GoesOffByAMessageThatIsBroughtBackToTheComposeBox)
{
    alice.person.send_to("Bob", "lunch?");
    open_history();

    expect_back_by("a double click", [this] { alice.person.double_click_history(1); });
}

TEST_F(AwaySwitch, GoesOffByEveryLoadOfTheSettings)
{
    auto& settings = alice.settings();
    expect_back_by("a load", [this] { alice.enter([this] { frmMain.loadusers.run(); }); });
    expect_back_by("a cancel", [&] { alice.enter([&] { settings.cancelbtn.click(); }); });
    settings.myown.set(1);
    expect_back_by("a save of a change", [&] { alice.enter([&] { settings.savebtn.click(); }); });
}

TEST_F(AwaySwitch, StaysOnBehindASaveThatChangesNothing)
{
    choose(0);
    alice.settings().acchanged.set(0);

    alice.enter([this] { alice.settings().savebtn.click(); });

    expect_on("I'm away from my desk");
    EXPECT_THAT(marked(), ElementsAre(0));
}

TEST_F(AwaySwitch, StaysOnWhenAPopupIsReadOrClosed)
{
    hear("BOB> lunch?");
    choose(0);

    alice.person.turn_to(popup.window);
    alice.person.type_reply(popup, "not yet sent");
    alice.person.click(popup, popup.Command1);

    expect_on("I'm away from my desk");
}

TEST_F(AwaySwitch, IsOffAtEveryStart)
{
    choose(0);
    alice.restart();
    EXPECT_EQ(alice.frmMain().away.value(), 0);

    alice.person.choose(alice.forms().menuform.autores, 0);
    alice.person.leave();
    alice.start();

    EXPECT_EQ(alice.frmMain().away.value(), 0);
    EXPECT_FALSE(alice.frmMain().Label5.visible);
}

} // namespace
