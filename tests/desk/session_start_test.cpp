#include "desktop/session_start.h"
#include "tests/desk/desk_flows.h"

namespace {

using namespace desk;
using namespace flows;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr char const* name = "Vexlo IM AutoStart";
constexpr char const* content = "\"/home/alice/vexlo/vexloim.exe\" /m";
constexpr char const* elsewhere = "\"/opt/vexlo/vexloim.exe\" /m";
constexpr char const* shortcut = "/home/alice/Start Menu/Programs/Startup/Vexlo IM.lnk";

sim::Setup start_with_session(std::string_view value)
{
    return {.settings = {{"STARTWITHWINDOWS", std::string(value)}}};
}

class SessionStart : public Desk {
protected:
    using Desk::Desk;

    SessionStart() { alice.environment.variables["USERPROFILE"] = "/home/alice"; }

    void tick_option(int value)
    {
        alice.enter([this, value] { alice.settings().autostartup.set(value); });
    }
    void save()
    {
        alice.enter([this] { alice.frmMain().saveallsettings.run(); });
    }
    void load()
    {
        alice.enter([this] { alice.frmMain().loadusers.run(); });
    }

    std::map<std::string, std::string, std::less<>>& entries = alice.session_entries.entries;
};

TEST_F(SessionStart, AFirstRunWritesTheEntry)
{
    alice.files.erase("settings.txt");
    alice.boxes.will_enter("Alice");

    start_alice();

    EXPECT_THAT(entries, ElementsAre(Pair(name, content)));
}

TEST_F(SessionStart, AMissingEntryIsWrittenAtTheNextStart)
{
    start_alice();

    EXPECT_THAT(entries, ElementsAre(Pair(name, content)));
}

TEST_F(SessionStart, AnEntryThatNamesAnotherFolderStays)
{
    entries[name] = elsewhere;

    start_alice();
    save();
    load();

    EXPECT_THAT(entries, ElementsAre(Pair(name, elsewhere)));
}

TEST_F(SessionStart, EntriesOfOtherNamesAreNobodysBusiness)
{
    entries["Something Else"] = "else";

    start_alice();
    tick_option(0);
    save();

    EXPECT_THAT(entries, ElementsAre(Pair("Something Else", "else")));
}

TEST_F(SessionStart, AnEntryThatIsNotWantedGoesAtTheStart)
{
    entries[name] = elsewhere;
    alice.prepare("Alice Meyer", start_with_session("0"));

    start_alice();

    EXPECT_THAT(entries, IsEmpty());
}

TEST_F(SessionStart, WithoutEntryAndWishNothingIsWrittenAndNothingFails)
{
    alice.session_entries.read_only = true;
    alice.prepare("Alice Meyer", start_with_session("0"));

    start_alice();
    save();

    EXPECT_TRUE(alice.running());
    EXPECT_THAT(entries, IsEmpty());
}

TEST_F(SessionStart, TheEntryFollowsTheOptionAtTheSave)
{
    start_alice();

    tick_option(0);
    EXPECT_EQ(entries.size(), 1U) << "not before the save";
    save();
    EXPECT_THAT(entries, IsEmpty());

    tick_option(1);
    save();
    EXPECT_THAT(entries, ElementsAre(Pair(name, content)));
}

TEST_F(SessionStart, TheEntryFollowsTheSettingsWindow)
{
    start_alice();
    auto& settings = alice.settings();
    while_open(settings.window, [&] {
        alice.person.tick(settings.window, settings.autostartup);
        alice.person.click(settings.window, settings.savebtn);
    });

    alice.person.choose(alice.forms().menuform.toolsmenu, 0);

    EXPECT_THAT(entries, IsEmpty());
}

TEST_F(SessionStart, ACancelReadsTheOptionAgainAndWithItTheEntry)
{
    start_alice();
    entries.clear();
    auto& settings = alice.settings();
    while_open(settings.window, [&] {
        alice.person.tick(settings.window, settings.autostartup);
        alice.person.click(settings.window, settings.cancelbtn);
    });

    alice.person.choose(alice.forms().menuform.toolsmenu, 0);

    EXPECT_THAT(entries, ElementsAre(Pair(name, content)));
}

TEST_F(SessionStart, EveryOtherSaveLooksAfterTheEntryToo)
{
    start_alice();
    office.settle();
    entries.clear();
    alice.person.leave();

    EXPECT_THAT(entries, ElementsAre(Pair(name, content))) << "the end of the program saves";
}

TEST_F(SessionStart, AReloadWithoutSettingsFileLooksAfterTheEntryToo)
{
    start_alice();
    entries.clear();
    alice.files.erase("settings.txt");

    load();

    EXPECT_THAT(entries, ElementsAre(Pair(name, content)));
}

TEST_F(SessionStart, AGreyedOptionTouchesNothing)
{
    alice.prepare("Alice Meyer", start_with_session("2"));

    start_alice();
    EXPECT_THAT(entries, IsEmpty());

    entries[name] = elsewhere;
    save();
    EXPECT_THAT(entries, ElementsAre(Pair(name, elsewhere)));
}

TEST_F(SessionStart, TheLoadLooksAfterTheEntryBehindTheEnterKeyAndBeforeThePopups)
{
    alice.prepare("Alice Meyer", {.settings = {{"ENTERSEND", "1"}}});
    Lines order;
    alice.frmMain().entersend.clicked.attach([&] { order.push_back("enter key"); });
    alice.frmMain().followsessionstart.attach([&] { order.push_back("entry"); });
    alice.popup(0).ontopoff.attach([&] { order.push_back("popups"); });

    start_alice();

    EXPECT_THAT(order, ElementsAre("enter key", "entry", "popups"));
}

TEST_F(SessionStart, TheSaveLooksAfterTheEntryBehindTheFileAndBeforeTheWatchdog)
{
    start_alice();
    Lines order;
    auto const note = [&](char const* step) {
        return [&order, step, this] {
            order.push_back(std::string(step) +
                            (alice.files.has("settings.txt") ? ", file written" : ", no file"));
        };
    };
    alice.frmMain().followsessionstart.attach(note("entry"));
    alice.frmMain().stopwatchdog.attach(note("watchdog"));
    alice.files.erase("settings.txt");

    save();

    EXPECT_THAT(order, ElementsAre("entry, file written", "watchdog, file written"));
}

TEST_F(SessionStart, AnEntryThatCannotBeWrittenEndsTheStart)
{
    alice.session_entries.read_only = true;

    start_alice();

    EXPECT_EQ(alice.status(), 1);
    EXPECT_EQ(alice.report(),
              "Failed to set registry value Key: '-2147483647',Section: "
              "'Software\\Microsoft\\Windows\\CurrentVersion\\Run',Key: 'Vexlo IM AutoStart' to "
              "value: '\"/home/alice/vexlo/vexloim.exe\" /m'");
    EXPECT_THAT(office.segment.texts(), IsEmpty());
}

TEST_F(SessionStart, AnEntryThatCannotBeWrittenEndsTheProgramAtTheSave)
{
    start_alice();
    entries.clear();
    alice.session_entries.read_only = true;

    save();

    EXPECT_EQ(alice.status(), 1);
    EXPECT_THAT(alice.report(), testing::StartsWith("Failed to set registry value Key: '"));
}

TEST_F(SessionStart, AnEntryThatCannotBeDeletedEndsTheProgram)
{
    start_alice();
    alice.session_entries.read_only = true;
    tick_option(0);

    save();

    EXPECT_EQ(alice.status(), 1);
    // The text stops without a closing apostrophe.
    EXPECT_EQ(alice.report(), "Failed to delete registry Key: '-2147483647',Section: "
                              "'Software\\Microsoft\\Windows\\CurrentVersion\\Run',Key: "
                              "'Vexlo IM AutoStart");
}

TEST_F(SessionStart, AnEntryThatIsThereNeedsNoWriting)
{
    entries[name] = content;
    alice.session_entries.read_only = true;

    start_alice();
    save();

    EXPECT_TRUE(alice.running());
}

/// The option is off, and the old shortcut is there.
class OldShortcut : public SessionStart {
protected:
    OldShortcut()
    {
        alice.prepare("Alice Meyer", start_with_session("0"));
        alice.files.put(shortcut, "shortcut");
    }
};

TEST_F(OldShortcut, GoesAndTicksTheOption)
{
    start_alice();

    EXPECT_FALSE(alice.files.has(shortcut));
    EXPECT_EQ(alice.settings().autostartup.value(), 1);
}

TEST_F(OldShortcut, BringsTheEntryAtTheNextSaveOfAnyKindNotBefore)
{
    start_alice();
    office.settle();
    EXPECT_THAT(entries, IsEmpty()) << "the load had looked after it before";

    alice.person.leave();

    EXPECT_THAT(entries, ElementsAre(Pair(name, content)));
    EXPECT_THAT(alice.files.content("settings.txt"),
                testing::HasSubstr("[STARTWITHWINDOWS    ]=1\r\n"));
}

TEST_F(OldShortcut, IsForgottenByAReloadBeforeTheNextSave)
{
    start_alice();

    load();

    EXPECT_EQ(alice.settings().autostartup.value(), 0) << "the file still says so";
    EXPECT_THAT(entries, IsEmpty());
}

TEST_F(OldShortcut, AnEntryOfItsTimeIsDeletedFirstAndComesBackAtTheSave)
{
    entries[name] = elsewhere;

    start_alice();
    EXPECT_THAT(entries, IsEmpty());
    save();

    EXPECT_THAT(entries, ElementsAre(Pair(name, content)));
}

TEST_F(OldShortcut, LiesInTheDesktopsHomeFolderWhereTheValueIsNotSet)
{
    alice.environment.variables.erase("USERPROFILE");
    alice.environment.desktop["USERPROFILE"] = "/home/alice";

    start_alice();

    EXPECT_FALSE(alice.files.has(shortcut));
}

TEST_F(OldShortcut, GoesBeforeTheGroupsAreLoaded)
{
    bool there = true;
    alice.forms().groups.loadgroups.attach([&] { there = alice.files.has(shortcut); });

    start_alice();

    EXPECT_FALSE(there);
}

TEST_F(OldShortcut, ThatCannotBeDeletedEndsTheStart)
{
    alice.files.unwritable.insert(shortcut);

    start_alice();

    EXPECT_EQ(alice.status(), 1);
    EXPECT_EQ(alice.report(), "Permission denied");
}

TEST_F(SessionStart, WithoutTheOldShortcutTheOptionIsTheFiles)
{
    alice.prepare("Alice Meyer", start_with_session("0"));

    start_alice();

    EXPECT_EQ(alice.settings().autostartup.value(), 0);
}

/// The wrapper itself, with a store of its own.
class Registry : public testing::Test {
protected:
    Registry() { registry.ValueKey = "name"; }

    sim::SessionEntries entries;
    desktop::cRegistry registry{entries};
};

TEST_F(Registry, BeginsAtTheCurrentUserAndWithText)
{
    EXPECT_EQ(registry.ClassKey, 0x80000001U);
    EXPECT_EQ(registry.ValueType, 1);
    EXPECT_EQ(registry.Default, "");
}

TEST_F(Registry, AValueThatIsNotThereReadsAsTheDefault)
{
    EXPECT_EQ(registry.Value(), "");
    registry.Default = "nothing";
    EXPECT_EQ(registry.Value(), "nothing");

    registry.Value("something");
    EXPECT_EQ(registry.Value(), "something");
}

TEST_F(Registry, ADeletedValueIsGone)
{
    registry.Value("something");

    EXPECT_TRUE(registry.DeleteValue());
    EXPECT_EQ(registry.Value(), "");
}

TEST_F(Registry, ARefusalCarriesTheNumberAndTheSource)
{
    entries.read_only = true;
    registry.ClassKey = 0x80000002;
    registry.SectionKey = "Software\\Run";
    try {
        registry.Value("something");
        FAIL() << "it was written";
    } catch (text::Failure const& failure) {
        EXPECT_EQ(failure.number, 26001);
        EXPECT_EQ(failure.origin, "vexloim.cRegistry");
        EXPECT_EQ(failure.text, "Failed to set registry value Key: '-2147483646',Section: "
                                "'Software\\Run',Key: 'name' to value: 'something'");
    }
}

TEST_F(Registry, AValueThatIsNotThereCannotBeDeleted)
{
    try {
        registry.DeleteValue();
        FAIL() << "it was deleted";
    } catch (text::Failure const& failure) {
        EXPECT_EQ(failure.number, 26001);
        EXPECT_EQ(failure.origin, "vexloim.cRegistry");
        EXPECT_EQ(failure.text,
                  "Failed to delete registry Key: '-2147483647',Section: '',Key: 'name");
    }
}

} // namespace
