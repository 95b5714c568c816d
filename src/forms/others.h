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
    controls::RichText Text1; ///< the selected row
    controls::Button Command1{"Copy / Print"};
    controls::Button Command2{"Close"};
    controls::Button logsave{"Save and Clear"};
    controls::Button viewlogs{"Open Log Dir"};
    controls::Button btnSearchOldLogs{"Search Old Logs"};
};

/// The window of the last hundred messages.
struct HistoryFrm {
    controls::Window window{10800, 5370};
    controls::Table ListView1;
    int current = 0; ///< number of the row in use, from 1
    controls::RichText message;
    controls::Button showmain{"Hide Main"};
    controls::Button closebtn{"Close"};
    controls::Button optionsbtn{"Options"};
    controls::Button searchlogs{"Search logs"};
    controls::Label autores; ///< the mark "Auto Respond is on"
    controls::CheckBox ontop;
    controls::CheckBox minmain;
    controls::CheckBox anchor;
    controls::CheckBox wasopen;

    controls::Menu mnuoptions{"Options",
                              {
                                  {"Keep on Top"},
                                  {"Minimize with main Window"},
                                  {"Anchor to Main Window"},
                                  {"-"},
                                  {"Clear"},
                                  {"Save now"},
                              }};

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
