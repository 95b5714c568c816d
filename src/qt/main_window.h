#pragma once

#include "qt/button.h"
#include "qt/line_label.h"
#include "qt/message_edit.h"
#include "qt/tick_box.h"
#include "qt/units.h"

#include <QFrame>
#include <QLabel>
#include <QListWidget>
#include <QPoint>
#include <QProgressBar>
#include <QTabWidget>
#include <QWidget>

#include <array>
#include <optional>

class QBoxLayout;

namespace qt {

/// The window that people write in: recipients on the left, message and quick buttons on the right,
/// a title bar of its own, and a status line. Its parts bear the names of the controls that they
/// show; it decides nothing.
class MainWindow : public QWidget {
    Q_OBJECT

public:
    /// `units` must outlive the window.
    explicit MainWindow(Units const& units);

private:
    QWidget body_{this};

public:
    LineLabel title;
    LineLabel Label3;
    LineLabel Label4;
    Button helpbtn;
    Button spotmenu;
    Button spotmin;
    Button spotx;

    QTabWidget SSTab1;
    QListWidget allusers;
    TickBox Checkallusers;
    QListWidget List1;
    Button configgroups;

    Button recall;
    Button dissmissall;
    Button history;
    Button autorespond;
    TickBox away;
    Button chatbtn;
    Button options;

    MessageEdit messagetext;
    QFrame Frame2;
    LineLabel Label5;
    LineLabel entlabel1;
    LineLabel entlabel2;
    Button Command3;
    Button sendbtn;
    std::array<Button*, 13> qb{}; ///< 1 to 12

    LineLabel statustext;
    LineLabel cuetotal;
    QProgressBar traffic;

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void name_parts();
    void describe_parts();
    void add_quick_buttons();
    void lay_out();
    [[nodiscard]] QBoxLayout* title_bar();
    [[nodiscard]] QBoxLayout* recipients();
    [[nodiscard]] QBoxLayout* compose();
    [[nodiscard]] QBoxLayout* tools();
    [[nodiscard]] QBoxLayout* send_row();
    [[nodiscard]] QLayout* quick_grid();
    [[nodiscard]] QBoxLayout* status_bar();
    void order_tabs();
    void restyle();

    Units const& units_;
    LineLabel waiting_;
    std::optional<QPoint> grip_; ///< where the window is held while it is moved by hand
};

} // namespace qt
