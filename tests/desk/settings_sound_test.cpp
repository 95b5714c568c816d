// The choice of a sound and of who messages are forwarded to.

#include "tests/desk/settings_desk.h"

namespace {

using namespace desk;
using testing::ElementsAre;
using testing::IsEmpty;

// The sound

constexpr auto own_sound = "/home/alice/vexlo/vexlo.wav";
constexpr auto bell = "/home/alice/bell.wav";

class SoundFile : public SettingsDesk {
protected:
    SoundFile() { alice.files.put(bell, "RIFF"); }

    void choose(std::string_view path)
    {
        alice.boxes.will_enter(path);
        press(settings.btnSoundFile);
    }
    void hear_a_message()
    {
        office.segment.inject_to("ROOM12",
                                 flows::message(flows::bob_id, flows::alice_id, "BOB> Lunch?"));
        office.settle();
    }
};

TEST_F(SoundFile, IsAskedForAmongWaveFilesFromThePresentOne)
{
    choose("");

    auto const& box = alice.boxes.shown().at(0);
    EXPECT_EQ(box.title, "Select Sound file");
    EXPECT_EQ(box.text, "Wave Files (*.wav)");
    EXPECT_EQ(box.default_text, own_sound);
}

TEST_F(SoundFile, IsTakenAndMarkedWhenItIsAWaveFile)
{
    choose(bell);

    EXPECT_EQ(settings.wavefile, bell);
    EXPECT_TRUE(settings.acchanged.on());
}

TEST_F(SoundFile, IsAWaveFileInCapitalsToo)
{
    choose("/home/alice/BELL.WaV");

    EXPECT_EQ(settings.wavefile, "/home/alice/BELL.WaV");
}

TEST_F(SoundFile, OfAnyOtherEndingIsDroppedWithoutAWord)
{
    for (auto const* const other : {"/home/alice/bell.mp3", "/home/alice/bell.wave",
                                    "/home/alice/bellwav", "/home/alice/bell.wav.bak", "wav"}) {
        choose(other);
        EXPECT_EQ(settings.wavefile, own_sound) << other;
    }
    EXPECT_FALSE(settings.acchanged.on());
    EXPECT_EQ(alice.boxes.shown().size(), 5U); // The dialogs themselves.
}

TEST_F(SoundFile, StaysAsItIsWhenTheDialogIsCancelled)
{
    choose("");

    EXPECT_EQ(settings.wavefile, own_sound);
    EXPECT_FALSE(settings.acchanged.on());
}

TEST_F(SoundFile, IsTheOldOneAgainAfterCancel)
{
    choose(bell);

    cancel();

    EXPECT_EQ(settings.wavefile, own_sound);
    hear_a_message();
    EXPECT_THAT(alice.sound.played, ElementsAre(own_sound));
}

TEST_F(SoundFile, IsTheOneSavedLastAgainAfterCancel)
{
    choose(bell);
    save_and_come_up();
    choose("/home/alice/gong.wav");

    cancel();

    EXPECT_EQ(settings.wavefile, bell);
}

TEST_F(SoundFile, IsHeardWithTheNextMessageOnceItIsSaved)
{
    choose(bell);
    hear_a_message();
    save();
    hear_a_message();

    EXPECT_THAT(alice.sound.played, ElementsAre(own_sound, bell));
    EXPECT_EQ(in_file("WAVEFILE"), bell);
}

TEST_F(SoundFile, ThatIsGoneAtTheSaveFallsBackOnTheProgramsOwn)
{
    choose("/home/alice/gone.wav");

    save();

    EXPECT_EQ(settings.wavefile, own_sound);
    EXPECT_EQ(in_file("WAVEFILE"), "/home/alice/gone.wav");
}

TEST_F(SoundFile, IsTestedBeforeItIsSavedAndWithTheSoundOff)
{
    choose(bell);
    tick(settings.soundon);

    press(settings.Command6);

    EXPECT_THAT(alice.sound.played, ElementsAre(bell));
}

TEST_F(SoundFile, IsNotHeardWithTheSoundOffThoughNothingWasSaved)
{
    tick(settings.soundon);

    hear_a_message();

    EXPECT_THAT(alice.sound.played, IsEmpty());
    EXPECT_TRUE(alice.popup(0).window.visible());
}

// Who messages are forwarded to

class ForwardTarget : public SettingsDesk {
protected:
    /// Opens the dialog and picks row `row`; none without one.
    void choose(int row, controls::Button const& by)
    {
        while_open(dialog.window, [&, row] {
            if (row >= 0) {
                alice.person.click_row(dialog.window, dialog.fwdto, row);
            }
            alice.person.click(dialog.window, by);
        });
        press(settings.btnAutoForward);
    }
    /// The fourth response and the label of its target.
    void expect_response(std::string_view response, std::string_view target)
    {
        EXPECT_EQ(settings.ar[3].text(), response);
        EXPECT_EQ(settings.ar3temp.caption(), target);
        EXPECT_EQ(settings.autoreply.visible, !target.empty());
    }

    forms::FwdToFrm& dialog = alice.forms().fwdtofrm;
};

constexpr int none = 0;
constexpr int bob_row = 1;
constexpr int no_row = -1;

TEST_F(ForwardTarget, IsNobodyOrAnyoneOnTheListButOneself)
{
    frmMain.allusers.add("alice meyer");

    choose(none, dialog.cancelbtn);

    EXPECT_THAT(dialog.fwdto.rows(), ElementsAre("None", "Bob", "Carl Dunn"));
    EXPECT_EQ(dialog.window.caption, "Forward to");
}

TEST_F(ForwardTarget, IsChosenFromAListMadeAnewEachTime)
{
    choose(none, dialog.cancelbtn);
    frmMain.allusers.add("Dora");
    choose(none, dialog.cancelbtn);

    EXPECT_THAT(dialog.fwdto.rows(), ElementsAre("None", "Bob", "Carl Dunn", "Dora"));
}

TEST_F(ForwardTarget, IsNobodyWhenOneIsAlone)
{
    alice.enter([this] {
        frmMain.allusers.clear();
        frmMain.allusers.add("Alice Meyer");
    });

    choose(none, dialog.cancelbtn);

    EXPECT_THAT(dialog.fwdto.rows(), ElementsAre("None"));
}

TEST_F(ForwardTarget, IsAskedForInAModalDialog)
{
    bool modal = false;
    while_open(dialog.window, [&] {
        modal = dialog.window.modal;
        EXPECT_THROW(save(), sim::Impossible);
        alice.person.click(dialog.window, dialog.cancelbtn);
    });

    press(settings.btnAutoForward);

    EXPECT_TRUE(modal);
    EXPECT_FALSE(dialog.window.visible());
}

TEST_F(ForwardTarget, StandsInTheFourthResponseAndInItsLabel)
{
    choose(bob_row, dialog.savebtn);

    expect_response("Forward to: Bob", "Bob");
    EXPECT_TRUE(settings.fwdchange.on());
}

TEST_F(ForwardTarget, IsTheTextBehindTwelveCharactersAfterARestart)
{
    choose(bob_row, dialog.savebtn);
    save();
    EXPECT_EQ(in_file("AUTORESPONSEMSG3"), "Forward to: Bob");

    come_back();

    EXPECT_EQ(alice.settings().ar3temp.caption(), "Bob");
    EXPECT_TRUE(alice.settings().autoreply.visible);
    EXPECT_EQ(alice.forms().menuform.autores[3].caption, "Forward to: Bob");
    EXPECT_TRUE(alice.forms().menuform.autores[3].visible);
}

TEST_F(ForwardTarget, ThatIsChosenAgainIsStillAChange)
{
    choose(bob_row, dialog.savebtn);
    save_and_come_up();

    choose(bob_row, dialog.savebtn);
    EXPECT_FALSE(settings.acchanged.on());
    save();

    EXPECT_THAT(sent_by(alice), ElementsAre(flows::announcement(flows::alice_id, "ALICE MEYER")));
}

TEST_F(ForwardTarget, OfNoneEmptiesTheFourthResponse)
{
    choose(bob_row, dialog.savebtn);

    choose(none, dialog.savebtn);

    expect_response("", "");
    EXPECT_TRUE(settings.fwdchange.on());
}

TEST_F(ForwardTarget, OfNoRowIsAForwardToNobodysName)
{
    choose(no_row, dialog.savebtn);

    expect_response("Forward to: ", "");
}

TEST_F(ForwardTarget, StaysWhenTheDialogIsCancelledWhichForgetsAnEarlierChange)
{
    choose(bob_row, dialog.savebtn);

    choose(none, dialog.cancelbtn);

    expect_response("Forward to: Bob", "Bob");
    EXPECT_FALSE(settings.fwdchange.on());
}

TEST_F(ForwardTarget, IsTheOldOneAgainAfterCancelOfTheSettings)
{
    choose(bob_row, dialog.savebtn);

    cancel();

    expect_response("", "");
    EXPECT_FALSE(settings.fwdchange.on());
}

} // namespace
