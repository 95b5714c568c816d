#pragma once

#include "controls/basic.h"
#include "controls/list_box.h"
#include "controls/text_box.h"
#include "controls/window.h"
#include "text/character_set.h"

#include <array>
#include <deque>
#include <string>

namespace forms {

/// The main object: the window that people write in, and the session's state.
struct FrmMain {
    explicit FrmMain(text::CharacterSet const& office_letters) : letters(office_letters) {}

    /// Points of the user list, unless it follows the size of the messages.
    static constexpr int small_font = 7;

    /// The letters of the office's character set; everything that has to do with case asks here.
    text::CharacterSet const& letters;

    controls::Window window{8205, 5370};

    // Numbers of the session.
    int messlen = 0;            ///< characters that a person may type
    int udplistenport = 4111;   ///< local port of SckUDP
    int udplistenremote = 4112; ///< remote port of SckUDP
    int udpsendport = 4112;     ///< local port of SckUDP1
    int udpsendremote = 4111;   ///< remote port of SckUDP1
    std::string bindingsocket;  ///< the socket that a bind step works on; failure handlers read it
    std::string curmessage;     ///< the queue row that the present tick handles

    // The receive queue. Row 0 is the oldest datagram; only the tick removes rows.
    std::deque<std::string> cue;
    controls::Label cuetotal;      ///< row count minus one, as text
    controls::ProgressBar traffic; ///< four times cuetotal, capped at 100
    controls::CheckBox boxopen;    ///< 1 while a modal box is open: rows wait

    controls::Timer Timer1{5000};  ///< watches the network, keeps the title, checks for users
    controls::Timer Timer2{60000}; ///< never enabled
    controls::Timer Timer3{120};   ///< takes one row off the queue at each tick

    // Who we are, and who the others are.
    std::string user;                      ///< own identity, in brackets and upper case
    std::string myname;                    ///< identity without brackets; empty until first needed
    std::string friendlyname;              ///< own display name, upper case
    controls::ListBox userlist{letters};   ///< identity, "=", display name, all upper case
    controls::ListBox allusers{letters};   ///< display names in proper case: the recipients on show
    controls::ListBox multiusers{letters}; ///< the recipients that a send goes to
    controls::ListBox List1{letters};      ///< groups: name, 30 blanks, slot digit
    std::string usercount;                 ///< ticks of Timer1 since the last user check, as text
    controls::CheckBox autocheckusers;
    controls::CheckBox cachecleared; ///< the user cache has been cleared in this run

    // The window's own controls.
    controls::Label title;
    controls::Label statustext; ///< "Network Error", exactly so, is the network-down state
    controls::TextBox messagetext;
    controls::Button sendbtn{"Send message"};
    controls::Button Command3{"Clear message"};
    controls::Button dissmissall{"Close all popups"};
    controls::Button recall{"Show the last message received"};
    controls::Button history{"Show History"};
    controls::Button options{"Options"};
    controls::Button autorespond{"Auto Respond"};
    controls::Button configgroups{"Config Grps"};
    controls::Button chatbtn{"Chat"};
    controls::Button helpbtn{"Help"};
    controls::Label Label3{"Software"}; ///< the company's page
    controls::Label Label4{"Web site"}; ///< the product's page
    controls::Button spotx{"Close"};
    controls::Button spotmin{"Minimize"};
    controls::Button spotmenu{"Settings"};
    std::array<controls::Button, 13> qb; ///< quick buttons 1 to 12; number 0 is not used
    controls::Tabs SSTab1;               ///< 0 users, 1 groups
    controls::CheckBox Checkallusers{0, "Send to All Users"};
    controls::Label entlabel1;
    controls::Label entlabel2;
    controls::Label Label5; ///< the warning and auto-respond banner
    controls::Label Frame2; ///< the frame around the banner
    controls::CheckBox away{0, "Auto Respond On"};
    controls::CheckBox fwd; ///< the draft is a forward; its caption is the first sender's name

    // State without a face.
    std::string minimized; ///< "yes" while the program lives in the tray
    std::string wavefile;
    controls::CheckBox Check2{1}; ///< sound on
    controls::CheckBox entersend;
    controls::ListBox popups{letters}; ///< "-" for a free slot, else a stamp and the window's name
    controls::ListBox wins;            ///< row i: "i" while slot i is free, "-" while it is busy
    controls::Label pucount;           ///< free slots, as text
    std::string recalltext;
    std::string recalltab;
    std::string recallindex;
    std::string temprec;
    std::string tempreply;
    controls::TextBox txtSendMessage;
    bool reply_failed = false; ///< the network refused the last reply
    std::string busy;          ///< "ok" behind each handled message; nothing reads it
    std::string updateurl;
    std::string whatsnew;

    // Routines that others run by name.
    controls::Command getusers;
    controls::Command saveusers;
    controls::Command loadusers;
    controls::Command saveallsettings;
    controls::Command cleanlog;
    controls::Command changeports1;
    controls::Command changeports2;
    controls::Command Command1; ///< change of name
    controls::Command Command4; ///< "Hide Me"; nothing runs it
    controls::Command Command5; ///< the dash datagram; nothing runs it
    controls::Command Command6; ///< port reset
    controls::Command makename; ///< nothing runs it
    controls::Command playsound;
    controls::Command soundtest;
    controls::Command updates;
    controls::Command recountpopups;
    controls::Command cmdSend;
    controls::Command
        followsessionstart; ///< the session entry follows the option "Start With Windows"
    controls::Command adoptoldshortcut; ///< an old start-up shortcut becomes the option
    controls::Command stopwatchdog;     ///< stops the companion process
};

} // namespace forms
