#include "tests/qt/frames.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QTabWidget>
#include <gmock/gmock.h>

#include <set>

namespace {

using desk::words;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int general = 0;
constexpr int send_buttons = 1;
constexpr int responses = 2;
constexpr int auto_respond = 3;
constexpr int admin = 4;

/// The settings on the screen.
struct SettingsWindow : testing::Test, desk::OwnedDesk<qt::SettingsBinder> {
    SettingsWindow() : OwnedDesk(forms.settings) { come_up(form.window); }

    void open(int tab)
    {
        form.SSTab1.choose(tab);
        show();
    }

    /// All texts of this tab that stay as they are, and captions.
    [[nodiscard]] std::set<std::string> seen(int tab)
    {
        open(tab);
        std::set<std::string> texts;
        for (auto const* const label : window.findChildren<QLabel*>()) {
            if (label->isVisible()) {
                texts.insert(label->text().toStdString());
            }
        }
        for (auto const* const button : window.findChildren<QAbstractButton*>()) {
            if (button->isVisible()) {
                texts.insert(button->text().toStdString());
            }
        }
        return texts;
    }

    forms::Settings& form = forms.settings;
    QTabWidget& tabs = control<QTabWidget>("SSTab1");
};

TEST_F(SettingsWindow, EveryControlIsFoundByItsName)
{
    EXPECT_EQ(window.objectName(), words("settings"));
    EXPECT_EQ(window.windowTitle(), words("Vexlo Instant Messaging - Settings"));
    EXPECT_THAT(
        desk::missing(
            window,
            {"SSTab1",          "friendlyname",  "Command1",       "portlisten",     "Command2",
             "portsend",        "Command3",      "chatport1",      "btnChatPort1",   "chatport2",
             "btnChatPort2",    "Frame1",        "localinfo",      "soundon",        "wavefile",
             "btnSoundFile",    "Command6",      "replytoall",     "myown",          "showme",
             "autostartup",     "ontop",         "startminimized", "userlistfont",   "watchdog",
             "startclearusers", "resetports",    "entersend",      "hidetip",        "msgfontsize",
             "autocheckusers",  "autoresmaster", "ar(0)",          "ar(1)",          "ar(2)",
             "ar(3)",           "autorespond",   "ar3temp",        "btnAutoForward", "autoreply",
             "autoclean",       "Command4",      "btnTransfer",    "savebtn",        "cancelbtn"}),
        IsEmpty());
}

TEST_F(SettingsWindow, EveryQuickButtonHasItsRow)
{
    std::vector<std::string> names;
    for (int number = 1; number <= 24; ++number) {
        auto const text = "(" + std::to_string(number) + ")";
        names.insert(names.end(), {"qsend" + text, "qsendtext" + text, "qsendi" + text,
                                   "qslabel(" + std::to_string(number - 1) + ")"});
    }
    EXPECT_THAT(desk::missing(window, names), IsEmpty());
    EXPECT_EQ(control<QLabel>("qslabel(0)").text(), words("1"));
    EXPECT_EQ(control<QLabel>("qslabel(11)").text(), words("12"));
    EXPECT_EQ(control<QLabel>("qslabel(12)").text(), words("1"));
    EXPECT_EQ(control<QLabel>("qslabel(23)").text(), words("12"));
}

TEST_F(SettingsWindow, TheTabsBearTheirCaptionsWithTheirBlanks)
{
    std::vector<std::string> captions;
    for (int tab = 0; tab < tabs.count(); ++tab) {
        captions.push_back(tabs.tabText(tab).toStdString());
    }
    EXPECT_THAT(captions, ElementsAre("General ", "Send Buttons", "Response Buttons ", "Auto Resp ",
                                      "Admin"));
}

TEST_F(SettingsWindow, TheSendTabTellsWhatItsRowsDo)
{
    auto const texts = seen(send_buttons);
    for (char const* text :
         {"Function keys F1 though F12 are assigned to Buttons 1 though 12",
          "IF Button Text contains the word \"EMERGENCY\" then button will appear RED and message "
          "will be sent to all users.",
          "= Send Immediately (you do not have to click SEND)", "Button Text", "Message Text",
          "Send Immediate"}) {
        EXPECT_THAT(texts, Contains(text));
    }
}

TEST_F(SettingsWindow, TheResponseTabTellsNothingOfFunctionKeys)
{
    auto const texts = seen(responses);
    for (char const* text : {"= Send Immediately (you do not have to click SEND)", "Button Text",
                             "Message Text", "Send Immediate"}) {
        EXPECT_THAT(texts, Contains(text));
    }
    EXPECT_FALSE(texts.contains("Function keys F1 though F12 are assigned to Buttons 1 though 12"));
}

TEST_F(SettingsWindow, BothLegendsHaveTheGreenOfWhatIsSentAtOnce)
{
    for (int const tab : {send_buttons, responses}) {
        open(tab);
        int seen = 0;
        for (auto* const legend : window.findChildren<QFrame*>(words("legend"))) {
            if (legend->isVisible()) {
                ++seen;
                auto const shot = legend->grab().toImage();
                EXPECT_EQ(shot.pixelColor(shot.rect().center()), QColor(128, 255, 128)) << tab;
            }
        }
        EXPECT_EQ(seen, 1) << tab;
    }
}

TEST_F(SettingsWindow, TheOtherTabsTellWhatTheirControlsAre)
{
    auto const first = seen(general);
    for (char const* text :
         {"My Name", "IM Listening Port", "IM Sending Port", "Chat ports", "Sound file",
          "Default font size", "(Use only if you have trouble sending or receiving messages)",
          "Show Pop Ups in front of all other Windows (Requires a restart)", "Select ...", "Test",
          "Change"}) {
        EXPECT_THAT(first, Contains(text));
    }
    auto const away = seen(auto_respond);
    for (char const* text :
         {"Enable Auto Respond", "Auto Respond Messages", "1", "4", "Auto forward messages to:"}) {
        EXPECT_THAT(away, Contains(text));
    }
    auto const last = seen(admin);
    for (char const* text :
         {"Auto clean User List",
          "Auto clean will clear all users from the user cache, seek active users on the local "
          "network and add them.",
          "Reset All Data Files and Settings",
          "Clear all settings, and restore them to orig. values.",
          "Settings and Buttons Transfer Utility", "Auto Clean", "Reset All Data", "Transfer"}) {
        EXPECT_THAT(last, Contains(text));
    }
}

TEST_F(SettingsWindow, NothingIsCutOff)
{
    for (int tab = 0; tab < tabs.count(); ++tab) {
        open(tab);
        for (auto const* const part : window.findChildren<QWidget*>()) {
            bool const caption = qobject_cast<QAbstractButton const*>(part) != nullptr ||
                                 qobject_cast<QLabel const*>(part) != nullptr;
            if (caption && part->isVisible()) {
                EXPECT_GE(part->width(), part->minimumSizeHint().width())
                    << part->objectName().toStdString();
                EXPECT_TRUE(
                    window.rect().contains(QRect(part->mapTo(&window, QPoint()), part->size())))
                    << part->objectName().toStdString();
            }
        }
    }
}

TEST(SettingsAtOnce, ComeUpAsLargeAsTheyStay)
{
    desk::Desk desk;
    QWidget owner;
    qt::SettingsBinder binder(desk.forms.settings, owner, desk.codec, desk.units);
    desk.forms.settings.window.show();
    QSize const first = binder.window().size();
    desk::settle();
    EXPECT_EQ(binder.window().size(), first);
    for (auto const* const page : binder.window().findChildren<QScrollArea*>()) {
        EXPECT_GE(page->width(), page->widget()->minimumSizeHint().width());
    }
}

TEST_F(SettingsWindow, ATabThatAPersonChoosesReachesTheForm)
{
    QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(admin).center());
    EXPECT_EQ(form.SSTab1.tab(), admin);
}

TEST_F(SettingsWindow, ShowsWhoAndWhereWeAre)
{
    form.friendlyname.set_caption("Alice Meyer");
    form.portlisten.set_caption("4111");
    form.Frame1.set_caption("Vexlo Instant Messaging ");
    form.localinfo.set_caption("Version: 1.5.3\r\nLocal Host Name: room12");
    form.wavefile = "/home/alice/bell.wav";
    show();

    EXPECT_EQ(control<QLabel>("friendlyname").text(), words("Alice Meyer"));
    EXPECT_EQ(control<QLabel>("portlisten").text(), words("4111"));
    EXPECT_EQ(control<QGroupBox>("Frame1").title(), words("Vexlo Instant Messaging "));
    EXPECT_EQ(control<QLabel>("localinfo").text(),
              words("Version: 1.5.3\nLocal Host Name: room12"));
    EXPECT_EQ(control<QLineEdit>("wavefile").text(), words("/home/alice/bell.wav"));
    EXPECT_TRUE(control<QLineEdit>("wavefile").isReadOnly());
}

TEST_F(SettingsWindow, AClickOnACheckBoxReachesTheForm)
{
    int clicks = 0;
    form.entersend.clicked.attach([&clicks] { ++clicks; });
    desk::click(control("entersend"));
    EXPECT_TRUE(form.entersend.on());
    EXPECT_EQ(clicks, 1);
    show();
    EXPECT_EQ(clicks, 1) << "showing is not clicking";
}

TEST_F(SettingsWindow, TheFontSizeIsOneOfFive)
{
    auto& sizes = control<QComboBox>("msgfontsize");
    std::vector<std::string> entries;
    for (int entry = 0; entry < sizes.count(); ++entry) {
        entries.push_back(sizes.itemText(entry).toStdString());
    }
    EXPECT_THAT(entries, ElementsAre("8", "10", "12", "14", "16"));
    EXPECT_EQ(sizes.currentText(), words("10"));

    int changes = 0;
    form.msgfontsize.changed.attach([&changes] { ++changes; });
    sizes.setFocus();
    QTest::keyClick(&sizes, Qt::Key_Down);
    EXPECT_EQ(form.msgfontsize.caption(), "12");
    EXPECT_EQ(changes, 1);
}

TEST_F(SettingsWindow, AFontSizeOfAHandMadeFileIsShownAllTheSame)
{
    form.msgfontsize.set_caption("11");
    show();
    auto& sizes = control<QComboBox>("msgfontsize");
    EXPECT_EQ(sizes.currentIndex(), -1);
    EXPECT_EQ(sizes.placeholderText(), words("11"));
    EXPECT_EQ(form.msgfontsize.caption(), "11");
}

TEST_F(SettingsWindow, WhatIsTypedInARowReachesTheForm)
{
    open(send_buttons);
    auto& caption = control<QLineEdit>("qsend(3)");
    int changes = 0;
    form.qsend[3].changed.attach([&changes] { ++changes; });
    caption.setFocus();
    desk::type(caption, "Tea?");
    EXPECT_EQ(form.qsend[3].text(), "Tea?");
    EXPECT_EQ(changes, 4);

    open(responses);
    auto& message = control<QLineEdit>("qsendtext(24)");
    message.setFocus();
    desk::type(message, "Yes");
    EXPECT_EQ(form.qsendtext[24].text(), "Yes");
}

TEST_F(SettingsWindow, WhatTheLettersOfTheOfficeLackBecomesAQuestionMark)
{
    open(auto_respond);
    auto& answer = control<QLineEdit>("ar(1)");
    form.ar[1].set_text("");
    show();
    answer.setFocus();
    desk::type(answer, "caf\u00e9 \u2603!");
    EXPECT_EQ(form.ar[1].text(), "caf\xe9 ?!");
    EXPECT_EQ(answer.text(), desk::words("caf\u00e9 ?!"));
    EXPECT_EQ(answer.cursorPosition(), 7);
}

TEST_F(SettingsWindow, AnAccentThatIsTypedBehindItsLetterIsOneWithIt)
{
    open(auto_respond);
    auto& answer = control<QLineEdit>("ar(1)");
    form.ar[1].set_text("cafe.");
    show();
    answer.setFocus();
    answer.setCursorPosition(4);
    desk::type(answer, "\u0301");
    EXPECT_EQ(form.ar[1].text(), "caf\xe9.");
    EXPECT_EQ(answer.text(), words("caf\u00e9."));
    EXPECT_EQ(answer.cursorPosition(), 4);
}

TEST_F(SettingsWindow, ALineEndInAHandMadeRowOutlivesAnEdit)
{
    open(send_buttons);
    form.qsendtext[1].set_text("one\r\ntwo");
    show();
    auto& message = control<QLineEdit>("qsendtext(1)");
    message.setFocus();
    message.setCursorPosition(0);
    desk::type(message, "1");
    EXPECT_EQ(form.qsendtext[1].text(), "1one\r\ntwo");
}

TEST_F(SettingsWindow, ATextLongerThanItsLineIsShownOnceAsFarAsItGoes)
{
    open(send_buttons);
    auto& message = control<QLineEdit>("qsendtext(1)");
    form.qsendtext[1].set_text(std::string(40000, 'x'));
    show();
    EXPECT_EQ(message.text(), QString(message.maxLength(), u'x'));

    int changes = 0;
    QObject::connect(&message, &QLineEdit::textChanged, &message, [&changes] { ++changes; });
    show();
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(form.qsendtext[1].text().size(), 40000U);
}

TEST_F(SettingsWindow, AHandMadeRowTooLongForItsLineOutlivesAnEdit)
{
    open(send_buttons);
    std::string const text(100'000, 'x');
    form.qsendtext[1].set_text(text);
    show();
    auto& message = control<QLineEdit>("qsendtext(1)");
    message.setFocus();
    for (std::size_t gone : {1U, 2U}) {
        message.setCursorPosition(0);
        QTest::keyClick(&message, Qt::Key_Delete);
        EXPECT_EQ(form.qsendtext[1].text(), text.substr(gone));
    }
}

TEST_F(SettingsWindow, ATextThatCodeChangesIsShown)
{
    open(send_buttons);
    form.qsendtext[1].set_text("a \"quoted\" word");
    show();
    EXPECT_EQ(control<QLineEdit>("qsendtext(1)").text(), words("a \"quoted\" word"));
    form.qsendtext[1].set_text("a 'quoted' word");
    show();
    EXPECT_EQ(control<QLineEdit>("qsendtext(1)").text(), words("a 'quoted' word"));
}

/// The most frequent colour of the widget.
QColor ground_of(QWidget& widget)
{
    QImage const seen = widget.grab().toImage();
    return seen.pixelColor(seen.width() - 6, seen.height() / 2);
}

TEST_F(SettingsWindow, ARowHasItsColourAtOnce)
{
    open(send_buttons);
    form.qsend[2].background = form.qsendtext[2].background = {255, 0, 0};
    form.qsend[3].background = {128, 255, 128};
    show();
    EXPECT_EQ(ground_of(control("qsend(2)")), QColor(255, 0, 0));
    EXPECT_EQ(ground_of(control("qsendtext(2)")), QColor(255, 0, 0));
    EXPECT_EQ(ground_of(control("qsend(3)")), QColor(128, 255, 128));
}

TEST_F(SettingsWindow, TheForwardBoxIsSeenOnlyWithATarget)
{
    open(auto_respond);
    EXPECT_FALSE(control("autoreply").isVisible());
    form.ar3temp.set_caption("Bob");
    form.autoreply.visible = true;
    show();
    EXPECT_TRUE(control("autoreply").isVisible());
    EXPECT_EQ(control<QLabel>("ar3temp").text(), words("Bob"));
}

TEST_F(SettingsWindow, WithoutItsProgramTheTransferIsDisabledAndUnexplained)
{
    open(admin);
    form.btnTransfer.enabled = false;
    form.transfername.set_caption("Settings and Buttons Transfer Utility  (Utility not Installed)");
    form.transfertext.visible = false;
    show();
    EXPECT_FALSE(control("btnTransfer").isEnabled());
    EXPECT_FALSE(control("transfertext").isVisible());
    EXPECT_EQ(control<QLabel>("transfername").text(),
              words("Settings and Buttons Transfer Utility  (Utility not Installed)"));
}

TEST_F(SettingsWindow, ItsButtonsPressTheirModels)
{
    for (auto const& [tab, name, button] :
         std::initializer_list<std::tuple<int, char const*, controls::Button*>>{
             {general, "Command1", &form.Command1},
             {general, "Command2", &form.Command2},
             {general, "Command3", &form.Command3},
             {general, "btnChatPort1", &form.btnChatPort1},
             {general, "btnChatPort2", &form.btnChatPort2},
             {general, "btnSoundFile", &form.btnSoundFile},
             {general, "Command6", &form.Command6},
             {auto_respond, "btnAutoForward", &form.btnAutoForward},
             {admin, "autoclean", &form.autoclean},
             {admin, "Command4", &form.Command4},
             {admin, "btnTransfer", &form.btnTransfer},
             {admin, "savebtn", &form.savebtn},
             {general, "cancelbtn", &form.cancelbtn}}) {
        open(tab);
        EXPECT_EQ(desk::presses_by_click(window, name, *button), 1) << name;
    }
}

TEST_F(SettingsWindow, ACloseRequestPressesCancel)
{
    EXPECT_EQ(desk::presses_by_closing(window, form.cancelbtn), 2);
}

TEST_F(SettingsWindow, ShowingItTwiceChangesNothing)
{
    auto const before = window.grab().toImage();
    show();
    show();
    EXPECT_EQ(window.grab().toImage(), before);
}

TEST_F(SettingsWindow, TabGoesThroughEveryControlOfThePage)
{
    open(general);
    tabs.tabBar()->setFocus();
    EXPECT_THAT(desk::tab_round(window),
                ElementsAre("qt_tabwidget_tabbar", "Command1", "Command2", "Command3",
                            "btnChatPort1", "btnChatPort2", "localinfo", "soundon", "wavefile",
                            "btnSoundFile", "Command6", "replytoall", "myown", "showme",
                            "entersend", "hidetip", "userlistfont", "ontop", "msgfontsize",
                            "autostartup", "startminimized", "startclearusers", "autocheckusers",
                            "watchdog", "resetports", "savebtn", "cancelbtn"));
    open(auto_respond);
    tabs.tabBar()->setFocus();
    EXPECT_THAT(desk::tab_round(window),
                ElementsAre("qt_tabwidget_tabbar", "autoresmaster", "ar(0)", "ar(1)", "ar(2)",
                            "ar(3)", "autorespond", "btnAutoForward", "savebtn", "cancelbtn"));
    open(send_buttons);
    tabs.tabBar()->setFocus();
    EXPECT_EQ(desk::tab_round(window).size(), 1U + 12 * 3 + 2);
}

TEST_F(SettingsWindow, EveryControlHasAName)
{
    for (int tab = 0; tab < tabs.count(); ++tab) {
        open(tab);
        EXPECT_THAT(desk::nameless(window), IsEmpty()) << "tab " << tab;
    }
    EXPECT_EQ(control("qsend(14)").accessibleName(), words("Button Text 2"));
    EXPECT_EQ(control("qsendi(14)").accessibleName(), words("Send Immediate 2"));
    EXPECT_EQ(control("Command2").accessibleDescription(), words("Change the listening port"));
}

} // namespace
