#include "tap/checks/desktop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using tap::check_session;
using tap::check_sound;
using tap::check_tray;
using tap::SessionEntry;
using tap::SoundWay;
using testing::HasSubstr;
using testing::StartsWith;

using enum tap::Finding::Health;

SoundWay sound()
{
    return {.switched_on = true,
            .file = "/app/vexlo.wav",
            .head = std::string("RIFF\x10\0\0\0WAVE", 12),
            .has_server = true};
}

SessionEntry entry()
{
    return {.wanted = true,
            .file = "/home/ann/.config/autostart/Vexlo IM AutoStart.desktop",
            .command = "\"/app/vexloim.exe\" /m",
            .program = "/app/vexloim.exe",
            .program_runs = true,
            .own_program = "/app/vexloim",
            .is_own = true};
}

TEST(TrayCheck, EitherKindOfTrayIsWell)
{
    EXPECT_EQ(check_tray({.has_desktop = true, .on_bus = true}).health, well);
    EXPECT_EQ(check_tray({.has_desktop = true, .on_screen = true}).health, well);
}

TEST(TrayCheck, ADesktopWithoutATrayIsAWarning)
{
    auto const finding = check_tray({.has_desktop = true, .desktop = "XFCE"});

    EXPECT_EQ(finding.health, warning);
    EXPECT_EQ(finding.remedy, "sudo apt-get install trayer && trayer & # or add a tray, \"Status "
                              "Notifier\" or \"System Tray\", to the panel of this desktop");
    EXPECT_THAT(check_tray({.has_desktop = true, .desktop = "ubuntu:GNOME"}).remedy,
                HasSubstr("gnome-shell-extension-appindicator"));
}

TEST(TrayCheck, WithoutADesktopNothingIsKnown)
{
    EXPECT_EQ(check_tray({}).health, unknown);
}

TEST(SoundCheck, AWaveFileAndSomebodyWhoPlaysItAreWell)
{
    EXPECT_EQ(check_sound(sound()).health, well);
}

TEST(SoundCheck, SoundThatIsSwitchedOffIsNotLookedAt)
{
    EXPECT_EQ(check_sound({}).health, well);
}

TEST(SoundCheck, BeforeTheFirstStartThereIsNoFileToLookAt)
{
    EXPECT_EQ(check_sound({.switched_on = true}).health, unknown);
}

TEST(SoundCheck, AFileThatIsMissingOrNoWaveIsAWarning)
{
    auto missing = sound();
    missing.head.reset();
    auto other = sound();
    other.head = "ID3";
    auto cut = sound();
    cut.head = "RIFF";

    EXPECT_THAT(check_sound(missing).text, HasSubstr("cannot be read"));
    EXPECT_THAT(check_sound(other).text, HasSubstr("no wave file"));
    EXPECT_EQ(check_sound(cut).health, warning);
}

TEST(SoundCheck, NobodyWhoPlaysIsAWarning)
{
    auto silent = sound();
    silent.has_server = false;

    EXPECT_EQ(check_sound(silent).health, warning);
    EXPECT_THAT(check_sound(silent).remedy, HasSubstr("systemctl --user start"));
}

TEST(SessionCheck, AnEntryThatStartsThisMessengerIsWell)
{
    EXPECT_EQ(check_session(entry()).health, well);
}

TEST(SessionCheck, NoEntryIsWellWhereNoneIsWanted)
{
    EXPECT_EQ(check_session({}).health, well);
}

TEST(SessionCheck, AnEntryThatIsWantedAndMissingIsMadeByTheMessenger)
{
    EXPECT_EQ(check_session({.wanted = true}).health, warning);
    EXPECT_THAT(check_session({.wanted = true, .own_program = "/app/vexloim"}).remedy,
                StartsWith("'/app/vexloim' & #"));
}

TEST(SessionCheck, AnEntryThatLeadsNowhereIsWrong)
{
    auto dead = entry();
    dead.program_runs = false;

    EXPECT_EQ(check_session(dead).health, wrong);
    EXPECT_THAT(check_session(dead).remedy,
                StartsWith("rm '/home/ann/.config/autostart/Vexlo IM AutoStart.desktop' # then "));
}

TEST(SessionCheck, AnEntryOfAnotherFolderIsAWarning)
{
    auto other = entry();
    other.is_own = false;

    EXPECT_EQ(check_session(other).health, warning);
}

} // namespace
