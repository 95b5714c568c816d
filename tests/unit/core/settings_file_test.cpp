// The two texts of the settings file, byte for byte.

#include "tests/unit/core/settings_fixture.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;
using testing::Not;

class SettingsFile : public unit::SettingsTest {
protected:
    /// Everything on another value than that of a first run.
    void change_every_option()
    {
        frmMain.friendlyname = "BOB";
        frmMain.udplistenport = 5001;
        frmMain.udpsendport = 5002;
        settings.soundon.set(0);
        frmMain.Check2.set(0);
        for (auto* option : {&settings.replytoall, &settings.myown, &settings.autoresmaster,
                             &settings.startminimized, &settings.ontop, &settings.userlistfont,
                             &settings.startclearusers, &settings.resetports, &settings.entersend,
                             &settings.hidetip, &settings.autocheckusers}) {
            option->set(1);
        }
        for (auto* option : {&settings.showme, &settings.autostartup, &settings.autoreply}) {
            option->set(0);
        }
        settings.ar[0].set_text("Lunch");
        settings.ar[1].set_text("");
        settings.ar[2].set_text("Gone, really");
        settings.ar[3].set_text("Forward to: Anna");
        settings.msgfontsize.set_caption("12");
        settings.wavefile = "/home/bob/bell.wav";
        frmMain.window.place(1200.5F, 0);
    }
};

constexpr auto first_file = "Vexlo Instant Messaging v1.5.3\r\n"
                            "[MY NAME             ]=ALICE MEYER\r\n"
                            "[LISTENINGPORT       ]=4111\r\n"
                            "[SENDINGPORT         ]=4112\r\n"
                            "[PLAYSOUND           ]=1\r\n"
                            "[REPLYTOALL          ]=0\r\n"
                            "[SHOWOWN             ]=0\r\n"
                            "[AUTORESPONSEALLOW   ]=0\r\n"
                            "[SHOWMEINLIST        ]=1\r\n"
                            "[STARTWITHWINDOWS    ]=1\r\n"
                            "[MINIMIZEONSTART     ]=0\r\n"
                            "[KEEPINFRONT         ]=0\r\n"
                            "[AUTORESPONSEMSG     ]=I'm away from my desk\r\n"
                            "[AUTORESPONSEMSG1    ]=I'm out of the office\r\n"
                            "[AUTORESPONSEMSG2    ]=I'm in a meeting\r\n"
                            "[AUTORESPONSEMSG3    ]=\r\n"
                            "[AUTORESPONSEFORWARD ]=1\r\n"
                            "[MESSAGEFONTSIZE     ]=10\r\n"
                            "[USERLISTFONT        ]=0\r\n"
                            "[USEWATCHDOG         ]=1\r\n"
                            "[STARTCLEARUSERCACHE ]=0\r\n"
                            "[RESETPORTS          ]=0\r\n"
                            "[ENTERSEND           ]=0\r\n"
                            "[HIDEENTERSENDTIP    ]=0\r\n"
                            "[WAVESOUND           ]=app/vexlo.wav\r\n"
                            "[WINPOSX             ]=5577.5\r\n"
                            "[WINPOSY             ]=3195\r\n"
                            "[AUTOCHECKUSERS      ]=0\r\n"
                            "\r\n";

constexpr auto first_file_saved = "Vexlo Instant Messaging v1.5.3\r\n"
                                  "Settings file\r\n"
                                  "[MY NAME             ]=ALICE MEYER\r\n"
                                  "[LISTENINGPORT       ]=4111\r\n"
                                  "[SENDINGPORT         ]=4112\r\n"
                                  "[PLAYSOUND           ]=1\r\n"
                                  "[REPLYTOALL          ]=0\r\n"
                                  "[SHOWOWN             ]=0\r\n"
                                  "[AUTORESPONSEMSG     ]=I'm away from my desk\r\n"
                                  "[AUTORESPONSEMSG1    ]=I'm out of the office\r\n"
                                  "[AUTORESPONSEMSG2    ]=I'm in a meeting\r\n"
                                  "[AUTORESPONSEMSG3    ]=\r\n"
                                  "[AUTORESPONSEFORWARD ]=1\r\n"
                                  "[AUTORESPONSEALLOW   ]=0\r\n"
                                  "[SHOWMEINLIST        ]=1\r\n"
                                  "[STARTWITHWINDOWS    ]=1\r\n"
                                  "[MINIMIZEONSTART     ]=0\r\n"
                                  "[KEEPINFRONT         ]=0\r\n"
                                  "[MESSAGEFONTSIZE     ]=10\r\n"
                                  "[USERLISTFONT        ]=0\r\n"
                                  "[STARTCLEARUSERCACHE ]=0\r\n"
                                  "[RESETPORTS          ]=0\r\n"
                                  "[ENTERSEND           ]=0\r\n"
                                  "[HIDEENTERSENDTIP    ]=0\r\n"
                                  "[WAVEFILE            ]=app/vexlo.wav\r\n"
                                  "[WINPOSX             ]=5577.5\r\n"
                                  "[WINPOSY             ]=3195\r\n"
                                  "[AUTOCHECKUSERS      ]=0\r\n"
                                  "End\r\n";

constexpr auto changed_file = "Vexlo Instant Messaging v1.5.3\r\n"
                              "Settings file\r\n"
                              "[MY NAME             ]=BOB\r\n"
                              "[LISTENINGPORT       ]=5001\r\n"
                              "[SENDINGPORT         ]=5002\r\n"
                              "[PLAYSOUND           ]=0\r\n"
                              "[REPLYTOALL          ]=1\r\n"
                              "[SHOWOWN             ]=1\r\n"
                              "[AUTORESPONSEMSG     ]=Lunch\r\n"
                              "[AUTORESPONSEMSG1    ]=\r\n"
                              "[AUTORESPONSEMSG2    ]=Gone, really\r\n"
                              "[AUTORESPONSEMSG3    ]=Forward to: Anna\r\n"
                              "[AUTORESPONSEFORWARD ]=0\r\n"
                              "[AUTORESPONSEALLOW   ]=1\r\n"
                              "[SHOWMEINLIST        ]=0\r\n"
                              "[STARTWITHWINDOWS    ]=0\r\n"
                              "[MINIMIZEONSTART     ]=1\r\n"
                              "[KEEPINFRONT         ]=1\r\n"
                              "[MESSAGEFONTSIZE     ]=12\r\n"
                              "[USERLISTFONT        ]=1\r\n"
                              "[STARTCLEARUSERCACHE ]=1\r\n"
                              "[RESETPORTS          ]=1\r\n"
                              "[ENTERSEND           ]=1\r\n"
                              "[HIDEENTERSENDTIP    ]=1\r\n"
                              "[WAVEFILE            ]=/home/bob/bell.wav\r\n"
                              "[WINPOSX             ]=1200.5\r\n"
                              "[WINPOSY             ]=0\r\n"
                              "[AUTOCHECKUSERS      ]=1\r\n"
                              "End\r\n";

TEST_F(SettingsFile, OfAFirstRunHasItsOwnOrderAndItsOwnEnd)
{
    frmMain.friendlyname = "ALICE MEYER";
    frmMain.window.place(5577.5F, 3195);

    store.write_default();

    EXPECT_EQ(file(), first_file);
}

TEST_F(SettingsFile, OfAFirstRunHoldsTheDefaultsWhateverTheOptionsSay)
{
    change_every_option();
    frmMain.friendlyname = "ALICE MEYER";
    frmMain.window.place(5577.5F, 3195);

    store.write_default();

    EXPECT_EQ(file(), first_file);
}

TEST_F(SettingsFile, OfAFirstRunWithoutANameHasNothingBehindTheKey)
{
    store.write_default();

    EXPECT_THAT(file(), HasSubstr("\r\n[MY NAME             ]=\r\n[LISTENINGPORT "));
}

TEST_F(SettingsFile, OfAFirstRunHoldsANameWithACommaWhole)
{
    frmMain.friendlyname = "MEYER, ALICE";

    store.write_default();
    EXPECT_THAT(file(), HasSubstr("[MY NAME             ]=MEYER, ALICE\r\n"));

    store.load();
    EXPECT_EQ(frmMain.friendlyname, "MEYER");
}

TEST_F(SettingsFile, OfASaveHasAnotherOrderAndAnotherEnd)
{
    change_every_option();

    store.save();

    EXPECT_EQ(file(), changed_file);
}

TEST_F(SettingsFile, OfAFirstRunIsMendedByTheFirstSave)
{
    frmMain.friendlyname = "ALICE MEYER";
    frmMain.window.place(5577.5F, 3195);
    store.write_default();
    store.load();

    store.save();

    EXPECT_EQ(file(), first_file_saved);
}

TEST_F(SettingsFile, ComesBackAsItWasWhenItIsLoadedAndSaved)
{
    change_every_option();
    settings.ar[2].set_text("Gone");
    files.contents["/home/bob/bell.wav"] = "a bell";
    store.save();
    auto const saved = file();
    forms::Forms other_forms(unit::western);
    core::SettingsStore other(other_forms, files, paths);

    other.load();
    other.save();

    EXPECT_EQ(file(), saved);
}

TEST_F(SettingsFile, NeverNamesTheWatchdogAfterASave)
{
    load(line("USEWATCHDOG", "1"));
    EXPECT_THAT(file(), HasSubstr("USEWATCHDOG"));

    store.save();

    EXPECT_THAT(file(), Not(HasSubstr("USEWATCHDOG")));
}

TEST_F(SettingsFile, LosesLinesOfAnyOtherKindAtASave)
{
    load("A remark\r\n" + line("MY OPTION", "1") + line("MY NAME", "BOB") + "[WAVESOUND");

    store.save();

    EXPECT_THAT(file(), Not(HasSubstr("remark")));
    EXPECT_THAT(file(), Not(HasSubstr("MY OPTION")));
    EXPECT_THAT(file(), Not(HasSubstr("WAVESOUND")));
}

TEST_F(SettingsFile, MakesTheLossBehindACommaPermanent)
{
    load(line("AUTORESPONSEMSG", "Back soon, call me"));
    EXPECT_EQ(settings.ar[0].text(), "Back soon");

    store.save();

    EXPECT_THAT(file(), HasSubstr("[AUTORESPONSEMSG     ]=Back soon\r\n"));
}

TEST_F(SettingsFile, DoesNotGuardItselfAgainstACommaAtASave)
{
    settings.ar[0].set_text("Back soon, call me");

    store.save();

    EXPECT_THAT(file(), HasSubstr("[AUTORESPONSEMSG     ]=Back soon, call me\r\n"));
}

TEST_F(SettingsFile, LosesAForwardingResponseThatDoesNotForward)
{
    load(line("AUTORESPONSEMSG3", "Ask Anna"));

    store.save();

    EXPECT_THAT(file(), HasSubstr("[AUTORESPONSEMSG3    ]=\r\n"));
}

TEST_F(SettingsFile, SaysSoundOnlyForASwitchThatIsOne)
{
    frmMain.Check2.set(2);
    store.save();
    EXPECT_THAT(file(), HasSubstr("[PLAYSOUND           ]=0\r\n"));

    frmMain.Check2.set(1);
    settings.soundon.set(1);
    store.save();
    EXPECT_THAT(file(), HasSubstr("[PLAYSOUND           ]=1\r\n"));
}

TEST_F(SettingsFile, TakesNameSoundAndPortsFromTheMainWindow)
{
    settings.friendlyname.set_caption("SOMEBODY ELSE");
    frmMain.friendlyname = "BOB";
    settings.soundon.set(1);
    frmMain.Check2.set(0);
    frmMain.udplistenport = 1;
    frmMain.udpsendport = 2;
    frmMain.udplistenremote = 3;
    frmMain.udpsendremote = 4;

    store.save();

    EXPECT_THAT(file(), HasSubstr("[MY NAME             ]=BOB\r\n"
                                  "[LISTENINGPORT       ]=1\r\n"
                                  "[SENDINGPORT         ]=2\r\n"
                                  "[PLAYSOUND           ]=0\r\n"));
}

TEST_F(SettingsFile, HasThePlaceInSinglePrecisionAndPlainDecimalText)
{
    load(line("WINPOSX", "1e5") + line("WINPOSY", "2147.08333333333"));

    store.save();

    EXPECT_THAT(file(), HasSubstr("[WINPOSX             ]=100000\r\n"
                                  "[WINPOSY             ]=2147.0833\r\n"));
}

TEST_F(SettingsFile, ReplacesWhatIsThere)
{
    file_holds(std::string(5000, 'x'));

    store.save();

    EXPECT_THAT(file(), testing::StartsWith("Vexlo Instant Messaging v1.5.3\r\nSettings file\r\n"));
    EXPECT_THAT(file(), testing::EndsWith("\r\nEnd\r\n"));
}

TEST_F(SettingsFile, ThatCannotBeWrittenIsAFailure)
{
    files.read_only = true;

    EXPECT_THROW(store.save(), text::Failure);
    EXPECT_THROW(store.write_default(), text::Failure);
}

} // namespace
