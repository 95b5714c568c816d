#pragma once

#include "qt/button.h"
#include "qt/line_label.h"
#include "qt/tick_box.h"
#include "qt/units.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QList>
#include <QWidget>

class QBoxLayout;
class QGridLayout;

namespace qt {

/// The first tab of the settings: name, ports, sound, and what the program does by itself.
class SettingsGeneralPage : public QWidget {
public:
    /// `units` must outlive the page.
    explicit SettingsGeneralPage(Units const& units);

    LineLabel friendlyname;
    Button Command1;
    LineLabel portlisten;
    Button Command2;
    LineLabel portsend;
    Button Command3;
    LineLabel chatport1;
    Button btnChatPort1;
    LineLabel chatport2;
    Button btnChatPort2;
    QGroupBox Frame1;
    QLabel localinfo;

    TickBox soundon;
    QLineEdit wavefile;
    Button btnSoundFile;
    Button Command6;

    TickBox replytoall;
    TickBox myown;
    TickBox showme;
    TickBox autostartup;
    TickBox ontop;
    TickBox startminimized;
    TickBox userlistfont;
    TickBox watchdog;
    TickBox startclearusers;
    TickBox resetports;
    TickBox entersend;
    TickBox hidetip;
    QComboBox msgfontsize;
    TickBox autocheckusers;

    /// The controls that take the keyboard, in the order of Tab.
    [[nodiscard]] QList<QWidget*> tab_order();

private:
    void name_all();
    void describe_parts();
    void lay_out();
    [[nodiscard]] QGridLayout* identity();
    [[nodiscard]] QBoxLayout* sound_row();
    [[nodiscard]] QBoxLayout* left_options();
    [[nodiscard]] QBoxLayout* right_options();
    [[nodiscard]] QBoxLayout* font_row();

    Units const& units_;
};

} // namespace qt
