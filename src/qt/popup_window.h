#pragma once

#include "forms/popup.h"
#include "qt/button.h"
#include "qt/line_label.h"
#include "qt/message_edit.h"
#include "qt/tick_box.h"
#include "qt/units.h"

#include <QTextEdit>
#include <QWidget>

#include <array>

namespace qt {

/// A message window. Its parts stand where the system has always had them, to the twip, on their
/// light grey ground, whatever the desktop's palette is. They bear the names of the controls that
/// they show.
class PopupWindow : public QWidget {
public:
    /// `units` must outlive the window.
    PopupWindow(QString const& name, Units const& units);

    LineLabel Label2;
    LineLabel messagefrom;
    QTextEdit message;
    TickBox Check1;
    LineLabel Label1;
    MessageEdit temp;
    Button Command2;
    Button fwd;
    std::array<Button*, 12> qb{}; ///< numbers 13 to 24
    Button printbtn;
    LineLabel Label3;
    Button Command1;
    LineLabel beensent;

    /// The note `Label3` reaches into the button below it, which draws itself lower while the note
    /// is there.
    void make_room_for_note(bool note);

private:
    void name_parts();
    void place_parts();
    void dress_parts();
    void add_quick_buttons();
    void order_tabs();

    Units const& units_;
};

} // namespace qt
