// What the reader of the settings file takes, and what it drops.

#include "tests/unit/core/settings_fixture.h"

#include <gmock/gmock.h>

#include <functional>
#include <ostream>

namespace {

using unit::SettingsTest;

class SettingsReader : public SettingsTest {};

struct FlagKey {
    std::string line;
    controls::CheckBox forms::Settings::*option;
    int initial;

    friend void PrintTo(FlagKey const& key, std::ostream* out) { *out << key.line; }
};

class EveryFlag : public SettingsTest, public testing::WithParamInterface<FlagKey> {
protected:
    [[nodiscard]] int option() const { return (settings.*GetParam().option).value(); }
};

TEST_P(EveryFlag, StandsAtItsDefaultWhenItsKeyIsMissing)
{
    load("Vexlo Instant Messaging v1.5.3\r\n");

    EXPECT_EQ(option(), GetParam().initial);
}

TEST_P(EveryFlag, TakesTheValueBehindItsKey)
{
    int const other = 1 - GetParam().initial;

    load(GetParam().line + std::to_string(other) + "\r\n");
    EXPECT_EQ(option(), other);

    load(GetParam().line + std::to_string(GetParam().initial) + "\r\n");
    EXPECT_EQ(option(), GetParam().initial);
}

TEST_P(EveryFlag, RefusesAnythingButANumber)
{
    for (auto const* value : {"", "yes", "1x"}) {
        EXPECT_THAT([&] { load(GetParam().line + value + "\r\n"); },
                    testing::ThrowsMessage<text::Failure>("Type mismatch"))
            << value;
    }
    EXPECT_EQ(option(), GetParam().initial);
}

TEST_P(EveryFlag, RefusesAnythingButANumberAtAReloadToo)
{
    load(GetParam().line + "1\r\n");
    start_up_is_over();

    EXPECT_THROW(load(GetParam().line + "\r\n"), text::Failure);
}

using S = forms::Settings;
INSTANTIATE_TEST_SUITE_P(Keys, EveryFlag,
                         testing::Values(FlagKey{"[PLAYSOUND           ]=", &S::soundon, 1},
                                         FlagKey{"[REPLYTOALL          ]=", &S::replytoall, 0},
                                         FlagKey{"[SHOWOWN             ]=", &S::myown, 0},
                                         FlagKey{"[AUTORESPONSEALLOW   ]=", &S::autoresmaster, 0},
                                         FlagKey{"[SHOWMEINLIST        ]=", &S::showme, 1},
                                         FlagKey{"[STARTWITHWINDOWS    ]=", &S::autostartup, 1},
                                         FlagKey{"[MINIMIZEONSTART     ]=", &S::startminimized, 0},
                                         FlagKey{"[KEEPINFRONT         ]=", &S::ontop, 0},
                                         FlagKey{"[AUTORESPONSEFORWARD ]=", &S::autoreply, 1},
                                         FlagKey{"[USERLISTFONT        ]=", &S::userlistfont, 0},
                                         FlagKey{"[STARTCLEARUSERCACHE ]=", &S::startclearusers, 0},
                                         FlagKey{"[RESETPORTS          ]=", &S::resetports, 0},
                                         FlagKey{"[ENTERSEND           ]=", &S::entersend, 0},
                                         FlagKey{"[HIDEENTERSENDTIP    ]=", &S::hidetip, 0},
                                         FlagKey{"[AUTOCHECKUSERS      ]=", &S::autocheckusers, 0}),
                         [](auto const& key) {
                             return key.param.line.substr(1, key.param.line.find(' ') - 1);
                         });

TEST_F(SettingsReader, TakesTheNameInUpperCase)
{
    load("[MY NAME             ]=Alice Meyer\r\n");

    EXPECT_EQ(frmMain.friendlyname, "ALICE MEYER");
    EXPECT_EQ(settings.friendlyname.caption(), "ALICE MEYER");
}

TEST_F(SettingsReader, TakesAnEmptyName)
{
    frmMain.friendlyname = "ALICE";

    load("[MY NAME             ]=\r\n");

    EXPECT_EQ(frmMain.friendlyname, "");
}

TEST_F(SettingsReader, TakesEachPortForBothSockets)
{
    load("[LISTENINGPORT       ]=5001\r\n[SENDINGPORT         ]=5002\r\n");

    EXPECT_EQ(frmMain.udplistenport, 5001);
    EXPECT_EQ(frmMain.udpsendremote, 5001);
    EXPECT_EQ(frmMain.udpsendport, 5002);
    EXPECT_EQ(frmMain.udplistenremote, 5002);
}

struct PortText {
    std::string text;
    int port;
};

class APortText : public SettingsTest, public testing::WithParamInterface<PortText> {};

TEST_P(APortText, CountsAsItsLeadingNumberRounded)
{
    load("[LISTENINGPORT       ]=" + GetParam().text + "\r\n");

    EXPECT_EQ(frmMain.udplistenport, GetParam().port);
}

INSTANTIATE_TEST_SUITE_P(Texts, APortText,
                         testing::Values(PortText{"abc", 0}, PortText{"", 0},
                                         PortText{"4200x", 4200}, PortText{" 4200", 4200},
                                         PortText{"4200.6", 4201}, PortText{"4200.4", 4200},
                                         PortText{"-1", -1}, PortText{"70000", 70000},
                                         PortText{"04111", 4111}));

TEST_F(SettingsReader, DropsAKeyInAnotherCaseOrWithOtherBlanks)
{
    for (auto const* field :
         {"[my name             ]=BOB", "[MY NAME            ]=BOB", "[MY NAME              ]=BOB",
          "[MY  NAME            ]=BOB", "[MY NAME]=BOB", "[MY NAME             ] =BOB",
          "[MY NAME             ]:BOB", "MY NAME=BOB", "[MY NAME             ]"}) {
        load(std::string(field) + "\r\n");
        EXPECT_EQ(frmMain.friendlyname, "") << field;
    }
}

TEST_F(SettingsReader, SkipsBlanksInFrontOfAKey)
{
    load("   [MY NAME             ]=BOB\r\n");

    EXPECT_EQ(frmMain.friendlyname, "BOB");
}

TEST_F(SettingsReader, KeepsBlanksAroundAValue)
{
    load("[AUTORESPONSEMSG     ]=  At lunch  \r\n");

    EXPECT_EQ(settings.ar[0].text(), "  At lunch  ");
}

TEST_F(SettingsReader, ACommaCutsAResponseText)
{
    load("[AUTORESPONSEMSG1    ]=Back soon, call me\r\n[MY NAME             ]=BOB\r\n");

    EXPECT_EQ(settings.ar[1].text(), "Back soon");
    EXPECT_EQ(frmMain.friendlyname, "BOB");
}

TEST_F(SettingsReader, WhatStandsBehindACommaMayBeAKeyOfItsOwn)
{
    load("[AUTORESPONSEMSG     ]=Back soon, [MY NAME             ]=EVE\r\n");

    EXPECT_EQ(settings.ar[0].text(), "Back soon");
    EXPECT_EQ(frmMain.friendlyname, "EVE");
}

TEST_F(SettingsReader, AQuotedFieldKeepsItsComma)
{
    load("\"[AUTORESPONSEMSG     ]=Back soon, call me\"\r\n");

    EXPECT_EQ(settings.ar[0].text(), "Back soon, call me");
}

TEST_F(SettingsReader, AQuoteBehindAKeyIsALetterOfTheValue)
{
    load("[AUTORESPONSEMSG     ]=\"Back soon, call me\"\r\n");

    EXPECT_EQ(settings.ar[0].text(), "\"Back soon");
}

TEST_F(SettingsReader, TheLastOfTwoEqualKeysCounts)
{
    load("[MY NAME             ]=ANNA\r\n[MY NAME             ]=BOB\r\n");

    EXPECT_EQ(frmMain.friendlyname, "BOB");
}

TEST_F(SettingsReader, EachKeyTakesEffectBeforeALaterOneFails)
{
    EXPECT_THROW(load("[MY NAME             ]=BOB\r\n[SHOWOWN             ]=yes\r\n"
                      "[LISTENINGPORT       ]=5001\r\n"),
                 text::Failure);

    EXPECT_EQ(frmMain.friendlyname, "BOB");
    EXPECT_EQ(frmMain.udplistenport, 4111);
}

TEST_F(SettingsReader, TheResponsesAreNotMixedUp)
{
    load("[AUTORESPONSEMSG     ]=zero\r\n[AUTORESPONSEMSG1    ]=one\r\n"
         "[AUTORESPONSEMSG2    ]=two\r\n[AUTORESPONSEMSG3    ]=Forward to: Three\r\n");

    EXPECT_EQ(settings.ar[0].text(), "zero");
    EXPECT_EQ(settings.ar[1].text(), "one");
    EXPECT_EQ(settings.ar[2].text(), "two");
    EXPECT_EQ(settings.ar[3].text(), "Forward to: Three");
    EXPECT_EQ(settings.autorespond.text(), "zero");
}

TEST_F(SettingsReader, MissingKeysLeaveTheTextsAndNumbersOfAFirstRun)
{
    load("a file made by hand\r\n");

    EXPECT_EQ(frmMain.friendlyname, "");
    EXPECT_EQ(frmMain.udplistenport, 4111);
    EXPECT_EQ(frmMain.udpsendport, 4112);
    EXPECT_EQ(settings.ar[0].text(), "I'm away from my desk");
    EXPECT_EQ(settings.ar[1].text(), "I'm out of the office");
    EXPECT_EQ(settings.ar[2].text(), "I'm in a meeting");
    EXPECT_EQ(settings.ar[3].text(), "");
    EXPECT_EQ(settings.autorespond.text(), "I'm away from my desk");
    EXPECT_EQ(settings.msgfontsize.caption(), "10");
    EXPECT_EQ(frmMain.messagetext.font_size, 10);
    EXPECT_EQ(frmMain.allusers.font_size, 7);
    EXPECT_EQ(frmMain.wavefile, "app/vexlo.wav");
}

TEST_F(SettingsReader, MissingKeysLeaveWhatAnEarlierLoadHasSet)
{
    load("[MY NAME             ]=BOB\r\n[SHOWOWN             ]=1\r\n"
         "[AUTORESPONSEMSG1    ]=one\r\n");

    load("Settings file\r\nEnd\r\n");

    EXPECT_EQ(frmMain.friendlyname, "BOB");
    EXPECT_TRUE(settings.myown.on());
    EXPECT_EQ(settings.ar[1].text(), "one");
}

TEST_F(SettingsReader, AMissingFileAtAReloadLeavesTheOptionsAsTheyAre)
{
    load("[MY NAME             ]=BOB\r\n[SHOWOWN             ]=1\r\n");
    files.remove(path);
    settings.watchdog.set(1);

    store.load();

    EXPECT_EQ(frmMain.friendlyname, "BOB");
    EXPECT_TRUE(settings.myown.on());
    EXPECT_FALSE(settings.watchdog.on());
    EXPECT_FALSE(files.exists(path));
}

TEST_F(SettingsReader, AnEmptyFileIsAFileWithoutKeys)
{
    load("");

    EXPECT_EQ(frmMain.udplistenport, 4111);
}

TEST_F(SettingsReader, TheWatchdogIsOffAfterEveryLoad)
{
    settings.watchdog.set(1);

    load("[USEWATCHDOG         ]=1\r\n");
    EXPECT_FALSE(settings.watchdog.on());

    load("[USEWATCHDOG         ]=not even a number\r\n");
    EXPECT_FALSE(settings.watchdog.on());
}

} // namespace
