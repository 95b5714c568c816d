#pragma once

#include "controls/basic.h"
#include "controls/list_box.h"
#include "controls/menu.h"
#include "controls/table.h"
#include "controls/text_box.h"
#include "controls/window.h"

#include <array>
#include <string>
#include <utility>

namespace forms {

/// The splash window. Its bar reads 15 once start-up is over; later flows read that.
struct Loading {
    controls::Window window{5400, 2700};
    controls::ProgressBar ProgressBar1;
};

/// The log of the run.
struct Log {
    controls::Window window{8205, 5370};
    controls::ListBox lstMessages;
};

/// The groups: ten lists of member names, by slot.
struct Groups {
    explicit Groups(text::CharacterSet const& letters)
        : List1(letters), group{controls::ListBox(letters), controls::ListBox(letters),
                                controls::ListBox(letters), controls::ListBox(letters),
                                controls::ListBox(letters), controls::ListBox(letters),
                                controls::ListBox(letters), controls::ListBox(letters),
                                controls::ListBox(letters), controls::ListBox(letters)}
    {
    }

    controls::ListBox List1; ///< name, 30 blanks, slot digit
    std::array<controls::ListBox, 10> group;
    controls::Command loadgroups;
};

/// The window of the last hundred messages.
struct HistoryFrm {
    controls::Window window{8205, 5370};
    controls::Table ListView1;
    controls::RichText message;
    controls::Button showmain{"Hide Main"};
    controls::Label autores; ///< the mark "Auto Respond is on"
    controls::CheckBox minmain;
    controls::CheckBox anchor;
    controls::CheckBox wasopen;

    controls::Command loadbtn;
    controls::Command savebtn;
    controls::Command historyrefresh;
    controls::Command showrow;
    controls::Command anchorwindow;
};

/// The window that is never shown: tray icon and menus.
struct MenuForm {
    controls::Window window{3000, 2000};

    controls::Menu toolsmenu{"Tools",
                             {
                                 {"Change Settings"},
                                 {"-", false},
                                 {"Find Other Users"},
                                 {"-"},
                                 {"Configure Groups"},
                                 {"-"},
                                 {"Check for Updates"},
                                 {"-"},
                                 {"View Logs"},
                                 {"Open saved msgs folder"},
                                 {"-"},
                                 {"Help"},
                                 {"On-line Help"},
                                 {"-", false},
                                 {"Recall last popup", false},
                             }};
    controls::Menu closepopups{"Popups",
                               {
                                   {"Close all popups", true, false},
                                   {"Recall last popup", true, false},
                                   {"Enable Auto Respond", false, false},
                               }};
    controls::Menu autores{"Autorespond",
                           {
                               {"I'm away from my desk"},
                               {"I'm out of the office"},
                               {"I'm in a meeting"},
                               {"", false},
                               {"Auto Respond Off", true, true, true},
                           }};

    controls::Command Command1; ///< tray: messages waiting
    controls::Command Command2; ///< tray: normal
    controls::Command Command3; ///< tray: away
    controls::Command trayadd;
    controls::Command unloadmecommand;
    controls::Command showhistory;
};

} // namespace forms
