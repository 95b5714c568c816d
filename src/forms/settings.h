#pragma once

#include "controls/basic.h"
#include "controls/text_box.h"
#include "controls/window.h"

#include <array>
#include <string>

namespace forms {

/// The options window. It exists for the whole run: its controls are the working copy of the
/// options.
struct Settings {
    controls::Window window{8205, 6200};
    controls::Tabs SSTab1;

    controls::Label friendlyname;
    // Design values; they stand swapped until the first refresh.
    controls::Label portlisten{"4112"};
    controls::Label portsend{"4111"};
    controls::Label chatport1{"4114"};
    controls::Label chatport2{"4113"};

    controls::Button Command1{"Change"}; ///< name
    controls::Button Command2{"Change"}; ///< listening port
    controls::Button Command3{"Change"}; ///< sending port
    controls::Button btnChatPort1{"Change"};
    controls::Button btnChatPort2{"Change"};
    controls::Label Frame1; ///< the status panel's frame
    controls::Label localinfo;

    controls::CheckBox soundon{1, "Play Sound when Message Arrives."};
    controls::Button btnSoundFile{"Select ..."};
    controls::Button Command6{"Test"};
    std::string wavefile;
    controls::CheckBox replytoall{0, "When Msg is Sent to All users, Respond to All users."};
    controls::CheckBox myown{0, "When sending to All users, include me."};
    controls::CheckBox showme{1, "Show My Name in user list"};
    controls::CheckBox autostartup{1, "Start With Windows"};
    controls::CheckBox ontop{0, "Show Pop Ups in front of all other Windows (Requires a restart)"};
    controls::CheckBox startminimized{0, "Minimize on Startup"};
    controls::CheckBox userlistfont{0, "Small Font in User List"};
    controls::CheckBox watchdog{0, "Use Vexlo Watchdog Service"};
    controls::CheckBox startclearusers{0, "Clear user cache at startup"};
    controls::CheckBox resetports{0, "Reset port after each transmission"};
    controls::CheckBox entersend{0, "Press ENTER to Send (Ctrl+Enter for New Line)"};
    controls::CheckBox hidetip{0, "Hide Tip"};
    controls::Label msgfontsize{"10"};
    controls::CheckBox autocheckusers{0, "Auto Check for users every 30 min"};

    controls::CheckBox autoresmaster{0, "Enable Auto Respond"};
    std::array<controls::TextBox, 4> ar{
        controls::TextBox{"I'm away from my desk"},
        controls::TextBox{"I'm out of the office"},
        controls::TextBox{"I'm in a meeting"},
        controls::TextBox{},
    };
    controls::TextBox autorespond{"I'm away from my desk"};
    controls::Label ar3temp; ///< who messages are forwarded to
    controls::CheckBox autoreply{1, "When forwarding, send Auto Response to orig. sender as well."};

    controls::Button btnAutoForward{"Select ..."};

    controls::Button autoclean{"Auto Clean"};
    controls::Button Command4{"Reset All Data"};
    controls::Button btnTransfer{"Transfer"};
    controls::Label transfername{"Settings and Buttons Transfer Utility"};
    controls::Label transfertext{"Exchange Settings, Buttons configuration and Group "
                                 "Configuration with other users."};

    // Rows 1 to 24 of the quick buttons; number 0 is not used.
    std::array<controls::TextBox, 25> qsend;
    std::array<controls::TextBox, 25> qsendtext;
    std::array<controls::CheckBox, 25> qsendi;

    controls::Button savebtn{"Save"};
    controls::Button cancelbtn{"Cancel"};
    controls::CheckBox Check1;    ///< cleared when the window is asked for; nothing reads it
    controls::CheckBox acchanged; ///< something changed whose Save needs a reload
    controls::CheckBox fwdchange; ///< the auto-forward target changed

    controls::Command loadbuttons;
    controls::Command SAVEBUTTONS;
    controls::Command getstats;
    controls::Command Command7; ///< reloads the settings and announces
};

} // namespace forms
