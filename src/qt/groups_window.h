#pragma once

#include "qt/button.h"
#include "qt/framed_window.h"

#include <QListWidget>

#include <array>

class QBoxLayout;

namespace qt {

/// The groups, the members of one of them, and who else there is. The ten lists of members stand at
/// one place. Its parts bear the names of the controls that they show.
class GroupsWindow : public FramedWindow {
public:
    /// `units` must outlive the window.
    GroupsWindow(Units const& units, QWidget* owner);

    QListWidget List1;
    std::array<QListWidget*, 10> group{};
    QListWidget users;
    Button Command1;
    Button Command2;
    Button Command3;
    Button Command4;
    Button Command5;
    Button Command6;
    Button closebtn;

private:
    void add_member_lists();
    void lay_out();
    void cut_long_rows();
    [[nodiscard]] QBoxLayout* titled(char const* title, QWidget& list);
    [[nodiscard]] QBoxLayout* group_column();
    [[nodiscard]] QBoxLayout* arrows();
    [[nodiscard]] QBoxLayout* bottom_row();
    void order();
};

} // namespace qt
