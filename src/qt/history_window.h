#pragma once

#include "qt/button.h"
#include "qt/framed_window.h"
#include "qt/tick_box.h"

#include <QLabel>
#include <QTextEdit>
#include <QTreeWidget>

class QBoxLayout;

namespace qt {

/// The last hundred messages: a report list, and the selected one in full. Its parts bear the names
/// of the controls that they show.
class HistoryWindow : public FramedWindow {
public:
    /// `units` must outlive the window.
    explicit HistoryWindow(Units const& units);

    QTreeWidget ListView1;
    QTextEdit message;
    QLabel autores;
    Button showmain;
    Button optionsbtn;
    Button searchlogs;
    Button closebtn;
    // Options that the menu shows; here they are only for whoever asks by name.
    TickBox ontop;
    TickBox minmain;
    TickBox anchor;
    TickBox wasopen;

protected:
    void changeEvent(QEvent* event) override;

private:
    void describe_parts();
    void set_columns();
    void lay_out();
    [[nodiscard]] QBoxLayout* button_row();
    void draw_mark();
};

} // namespace qt
