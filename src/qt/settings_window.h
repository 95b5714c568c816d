#pragma once

#include "qt/button.h"
#include "qt/framed_window.h"
#include "qt/settings_admin_page.h"
#include "qt/settings_away_page.h"
#include "qt/settings_buttons_page.h"
#include "qt/settings_general_page.h"

#include <QTabWidget>

namespace qt {

/// All options, on five tabs. Its parts, and those of its pages, bear the names of the controls
/// that they show.
class SettingsWindow : public FramedWindow {
public:
    /// `units` must outlive the window.
    SettingsWindow(Units const& units, QWidget* owner);

    QTabWidget SSTab1;
    Button savebtn;
    Button cancelbtn;
    SettingsGeneralPage& general;
    SettingsButtonsPage& send;
    SettingsButtonsPage& response;
    SettingsAwayPage& away;
    SettingsAdminPage& admin;

    void setVisible(bool visible) override;

private:
    void add_tabs();
    void lay_out();
    void order();
};

} // namespace qt
