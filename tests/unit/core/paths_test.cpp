#include "core/paths.h"
#include "core/settings_lines.h"
#include "core/version.h"

#include <gtest/gtest.h>

namespace {

TEST(Paths, EveryFileLiesInTheProgramFolder)
{
    core::Paths const paths("/opt/vexlo");

    EXPECT_EQ(paths.settings, "/opt/vexlo/settings.txt");
    EXPECT_EQ(paths.users, "/opt/vexlo/users.txt");
    EXPECT_EQ(paths.logs, "/opt/vexlo/logs");
    EXPECT_EQ(paths.sound, "/opt/vexlo/vexlo.wav");
}

TEST(Paths, TheStoredProgramHasItsOldName)
{
    EXPECT_EQ(core::Paths("/opt/vexlo").program, "/opt/vexlo/vexloim.exe");
}

TEST(Version, HasThreeParts)
{
    EXPECT_EQ(core::version_text(), "1.5.3");
}

TEST(SettingsLine, IsTwentyThreeCharactersAndAValue)
{
    EXPECT_EQ(core::settings_lines::key_line("MY NAME"), "[MY NAME             ]=");
    EXPECT_EQ(core::settings_lines::key_line("AUTORESPONSEFORWARD"), "[AUTORESPONSEFORWARD ]=");
    EXPECT_EQ(core::settings_lines::key_line("").size(), core::settings_lines::value_place);
    EXPECT_EQ(core::settings_lines::value_place, 23U);
}

} // namespace
