#include "tap/checks/folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using tap::check_folder;
using tap::check_name;
using tap::Finding;
using tap::ProgramFolder;
using testing::EndsWith;
using testing::HasSubstr;

using enum tap::Finding::Health;

ProgramFolder folder()
{
    return {.path = "/home/ann/vexloim",
            .exists = true,
            .has_program = true,
            .writable = true,
            .free_bytes = 1'000'000'000};
}

TEST(FolderCheck, AFolderWithTheProgramThatCanBeWrittenIsWell)
{
    EXPECT_EQ(check_folder(folder()).health, well);
}

TEST(FolderCheck, AFolderWithoutTheProgramIsWrong)
{
    auto empty = folder();
    empty.has_program = false;

    EXPECT_EQ(check_folder(empty).health, wrong);
    EXPECT_THAT(check_folder(empty).remedy, HasSubstr("--folder"));
    EXPECT_EQ(check_folder({.path = "/nowhere"}).health, wrong);
}

TEST(FolderCheck, WhatCannotBeWrittenOrReadIsNamedAndGivenBack)
{
    auto locked = folder();
    locked.writable = false;
    auto hidden = folder();
    hidden.unreadable = {"settings.txt", "users.txt"};
    auto fixed = folder();
    fixed.unwritable = {"hist.dat"};

    EXPECT_EQ(check_folder(locked).health, wrong);
    EXPECT_EQ(check_folder(locked).remedy, "sudo chown -R \"$USER\": '/home/ann/vexloim' && chmod "
                                           "-R u+rwX '/home/ann/vexloim'");
    EXPECT_THAT(check_folder(hidden).text, HasSubstr("settings.txt, users.txt"));
    EXPECT_THAT(check_folder(fixed).text, HasSubstr("hist.dat"));
}

TEST(FolderCheck, ARemedyNamesTheFolderAsAShellTakesIt)
{
    auto odd = folder();
    odd.path = "/home/o'brien/my vexloim";
    odd.free_bytes = 0;

    EXPECT_EQ(check_folder(odd).remedy, "df -h '/home/o'\\''brien/my vexloim'");
    odd.writable = false;
    EXPECT_THAT(check_folder(odd).remedy, EndsWith(" '/home/o'\\''brien/my vexloim'"));
}

TEST(FolderCheck, AFullDiskIsAWarning)
{
    auto full = folder();
    full.free_bytes = 4096;

    EXPECT_EQ(check_folder(full).health, Finding::Health::warning);
}

TEST(NameCheck, AnOrdinaryNameIsWell)
{
    EXPECT_EQ(check_name({"room12", "ann", "Ann"}).text, "Ann, room12\\ann");
    EXPECT_EQ(check_name({"room12", "ann", "Ann"}).health, well);
}

TEST(NameCheck, ALetterThatEndsAnIdentityIsWrong)
{
    EXPECT_EQ(check_name({"room]12", "ann", "Ann"}).health, wrong);
    EXPECT_EQ(check_name({"room12", "a=n", "Ann"}).health, wrong);
    EXPECT_EQ(check_name({"room12", "ann", "A=n]"}).health, well);
}

TEST(NameCheck, ADeskWithoutANameIsWrong)
{
    EXPECT_EQ(check_name({"", "ann", "Ann"}).remedy, "sudo hostnamectl set-hostname NAME");
    EXPECT_EQ(check_name({"room12", "", "Ann"}).remedy,
              "export USERNAME=NAME # before the messenger starts");
}

} // namespace
