#pragma once

#include "demo/controls.h"
#include "demo/office_time.h"
#include "demo/tray.h"

#include "qt/codec.h"
#include "qt/desk_boxes.h"
#include "qt/shell.h"
#include "qt/units.h"
#include "sim/peer.h"

#include <QPoint>
#include <QRect>
#include <QString>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <set>

class QMenu;

namespace demo {

/// The real windows of one peer. What the story does at them goes through keyboard and mouse
/// events, and so does what a person does.
class Desk {
public:
    using Story = std::function<void()>;

    /// On the left half of the screen, or the right one.
    enum class Side { left, right };

    /// All must outlive the desk.
    Desk(sim::Peer& host, OfficeTime& time, qt::Codec const& codec, Side side);
    Desk(Desk const&) = delete;
    Desk& operator=(Desk const&) = delete;

    /// Starts the program, which asks for a name: `meanwhile` is played in front of that box.
    void start(Story const& meanwhile);

    // What a person does.
    void pick(Control const& list, QString const& row);
    /// A double click on the first row of a table in which this text stands.
    void double_click(Control const& table, QString const& text);
    void type(Control const& box, QString const& text);
    void press_key(Control const& box, int key, Qt::KeyboardModifiers held = {});
    void press(Control const& button);
    void open_tab(Control const& tabs, int tab);
    /// A menu that a button opens; after a look at it, the entry of this name is chosen.
    void choose(Control const& button, QString const& name, QString const& entry);

    // The same where a window or a box gets in the way: `meanwhile` is played in front of it, and
    // whatever is still in the way after that is cancelled.
    void press(Control const& button, Story const& meanwhile);
    void choose(Control const& button, QString const& name, QString const& entry,
                Story const& meanwhile);
    /// Types into the box that is in the way, and presses its button of this name.
    void fill_box(QString const& text);
    static void answer_box(QString const& button);

    /// Leaves a picture of the window or menu of that name, or of the box in the way, in a file of
    /// that name.
    void picture(QString const& name, QString const& file);
    void picture_of_box(QString const& file);
    void picture_of_menu(QString const& name, QString const& file);

    /// Gives the program an icon in the real notification area, where somebody sees it.
    void use_tray();
    /// Makes all windows equal to their forms.
    void show();
    [[nodiscard]] bool owns(QWidget const& widget) const;

    sim::Peer& peer;
    QString pictures; ///< the folder; empty for none

private:
    template <typename Widget>
    [[nodiscard]] Widget& find(Control const& control);
    [[nodiscard]] QWidget& window(QString const& name);
    [[nodiscard]] QMenu& menu(QString const& name);
    void place_main();
    void place_popups();
    void hide_windows();
    /// Does something that comes back only when what it brings up has gone.
    void into(Story const& opening, Story const& meanwhile);
    void keep(QWidget& widget, QString const& name) const;

    OfficeTime& time_;
    qt::Codec const& codec_;
    qt::Units units_;
    QRect screen_;
    QPoint corner_; ///< of the main window
    std::set<QWidget*> windows_;
    std::optional<Tray> tray_;
    std::unique_ptr<qt::Shell> shell_;
    qt::DeskBoxes boxes_;
};

} // namespace demo
