#include "flows.h"

namespace {

using namespace flows;
using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// A program whose files are read again while it runs.
class Reload : public TwoPeople {
protected:
    void reload_with(std::vector<std::pair<std::string, std::string>> const& settings)
    {
        alice.files.put("settings.txt", sim::settings_file("Alice Meyer", settings));
        alice.enter([this] { frmMain.loadusers.run(); });
    }

    forms::FrmMain& frmMain = alice.frmMain();
};

TEST_F(Reload, AnEmptyFlagEndsTheProgramThenToo)
{
    reload_with({{"SHOWOWN", ""}});

    EXPECT_EQ(alice.report(), "Type mismatch");
    EXPECT_EQ(alice.status(), 1);
}

TEST_F(Reload, SwitchesAutoRespondOff)
{
    alice.enter([this] { frmMain.away.set(1); });
    EXPECT_TRUE(frmMain.Label5.visible);

    reload_with({});

    EXPECT_EQ(frmMain.away.value(), 0);
    EXPECT_FALSE(frmMain.Label5.visible);
    EXPECT_TRUE(alice.forms().menuform.autores[4].checked);
}

TEST_F(Reload, LeavesTheWindowWhereItIs)
{
    frmMain.window.place(123, 456);

    reload_with({{"WINPOSX", "9000"}, {"WINPOSY", "9000"}});

    EXPECT_FLOAT_EQ(frmMain.window.left, 123);
    EXPECT_FLOAT_EQ(frmMain.window.top, 456);
}

TEST_F(Reload, MovesNoSocket)
{
    office.segment.forget();

    reload_with({{"LISTENINGPORT", "5000"}});

    EXPECT_EQ(frmMain.udplistenport, 5000);
    EXPECT_THAT(office.segment.bound(), IsEmpty());
}

TEST_F(Reload, OverridesAChangeThatWasNotSaved)
{
    frmMain.friendlyname = "SOMEBODY ELSE";

    reload_with({});

    EXPECT_EQ(frmMain.friendlyname, "ALICE MEYER");
}

TEST_F(Reload, WithoutASettingsFileKeepsTheOptions)
{
    alice.settings().myown.set(1);
    alice.files.erase("settings.txt");

    alice.enter([this] { frmMain.loadusers.run(); });

    EXPECT_EQ(alice.settings().myown.value(), 1);
    EXPECT_TRUE(alice.running());
}

/// The file names other ports than those that the sockets are bound to.
class PortChangeBehindAReload : public Reload {
protected:
    PortChangeBehindAReload() { reload_with({{"LISTENINGPORT", "5000"}, {"SENDINGPORT", "5001"}}); }

    void answer(controls::Command& change, std::string_view port)
    {
        alice.boxes.will_enter(port);
        alice.enter([&] { change.run(); });
    }
};

TEST_F(PortChangeBehindAReload, OffersThePortsOfTheSockets)
{
    answer(frmMain.changeports1, "");
    answer(frmMain.changeports2, "");

    EXPECT_EQ(alice.boxes.shown().at(0).default_text, "4111");
    EXPECT_EQ(alice.boxes.shown().at(1).default_text, "4112");
}

TEST_F(PortChangeBehindAReload, ThePortOfTheSocketIsThePresentOne)
{
    office.segment.forget();

    answer(frmMain.changeports1, "4111");
    answer(frmMain.changeports2, "4112");

    EXPECT_THAT(office.segment.bound(), IsEmpty());
}

TEST_F(PortChangeBehindAReload, TheOtherPortOfTheFileIsRefused)
{
    office.segment.forget();
    alice.boxes.will_enter("5001");
    alice.boxes.will_answer(platform::Answer::ok);
    alice.enter([this] { frmMain.changeports1.run(); });
    alice.boxes.will_enter("5000");
    alice.boxes.will_answer(platform::Answer::ok);
    alice.enter([this] { frmMain.changeports2.run(); });

    EXPECT_THAT(alice.boxes.shown(), testing::SizeIs(4));
    EXPECT_THAT(office.segment.bound(), IsEmpty());
}

/// A person who changes the own name.
class ChangeOfName : public TwoPeople {
protected:
    void change_to(std::string_view name)
    {
        alice.boxes.will_enter(name);
        alice.enter([this] { frmMain.Command1.run(); });
    }

    forms::FrmMain& frmMain = alice.frmMain();
};

TEST_F(ChangeOfName, AsksAndOffersThePresentName)
{
    change_to("");

    auto const& box = alice.boxes.shown().at(0);
    EXPECT_EQ(box.text, "Please enter your name:\r\n");
    EXPECT_EQ(box.title, "Change your Vexlo IM Name");
    EXPECT_EQ(box.default_text, "ALICE MEYER");
}

TEST_F(ChangeOfName, AnnouncesTheNewNameAndSavesIt)
{
    alice.journal.switch_on();

    change_to("Alice");

    EXPECT_THAT(alice.journal.lines(),
                HasInOrder(Lines{"send " + announcement(alice_id, "ALICE"), "write settings.txt"}));
    EXPECT_THAT(alice.files.content("settings.txt"), HasSubstr("[MY NAME             ]=ALICE\r\n"));
    EXPECT_EQ(frmMain.friendlyname, "ALICE");
    EXPECT_EQ(frmMain.myname, "ROOM12\\alice");
    EXPECT_EQ(frmMain.user, alice_id);
}

TEST_F(ChangeOfName, CancelLeavesEverythingAsItIs)
{
    alice.journal.switch_on();

    change_to("");

    EXPECT_EQ(frmMain.friendlyname, "ALICE MEYER");
    EXPECT_THAT(alice.journal.lines(), ElementsAre(testing::StartsWith("box ")));
}

TEST_F(ChangeOfName, MessagesPopUpBehindItsBox)
{
    alice.boxes.will_enter("").after(1s).meanwhile(
        [&] { bob.person.send_to("Alice Meyer", "Hello"); });

    alice.enter([this] { frmMain.Command1.run(); });

    EXPECT_TRUE(alice.popup(0).window.visible());
}

TEST_F(ChangeOfName, IsOneNewRowAtThePeers)
{
    change_to("Alicia");
    office.settle();

    EXPECT_THAT(bob.frmMain().userlist.rows(), Contains("[ROOM12\\ALICE]=ALICIA"));
    EXPECT_THAT(bob.frmMain().userlist.rows(), Not(Contains("[ROOM12\\ALICE]=ALICE MEYER")));
    office.run_for(watch);
    EXPECT_EQ(frmMain.window.caption, "Vexlo - Alicia Listening");
}

TEST_F(ChangeOfName, WithoutANetworkEndsTheProgramWithItsReport)
{
    alice.unplug();

    change_to("Alicia");

    EXPECT_EQ(alice.report(), "No route to host.");
    EXPECT_EQ(alice.status(), 1);
    EXPECT_THAT(alice.files.content("settings.txt"), Not(HasSubstr("ALICIA")));
}

TEST_F(ChangeOfName, AProgramWithoutANameCanBeGivenOne)
{
    // Nothing in the program asks for it.
    frmMain.friendlyname = "";
    int flag = 0;
    alice.boxes.will_enter("Alicia").meanwhile([&] { flag = frmMain.boxopen.value(); });

    alice.enter([this] { frmMain.makename.run(); });

    EXPECT_EQ(alice.boxes.shown().at(0).title, "Vexlo Instant Messaging Setup");
    EXPECT_EQ(alice.boxes.shown().at(0).default_text, "");
    EXPECT_EQ(flag, 1);
    EXPECT_EQ(frmMain.friendlyname, "ALICIA");
    EXPECT_EQ(frmMain.myname, "ROOM12\\ALICE");
    EXPECT_EQ(frmMain.user, alice_id);
}

TEST_F(ChangeOfName, AProgramWithANameIsNotAskedForOne)
{
    frmMain.user = "";

    alice.enter([this] { frmMain.makename.run(); });

    EXPECT_EQ(frmMain.user, alice_id);
    EXPECT_EQ(frmMain.friendlyname, "ALICE MEYER");
}

} // namespace
