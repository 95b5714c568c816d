#pragma once

#include "forms/forms.h"
#include "qt/codec.h"
#include "qt/desk_tray.h"
#include "qt/forward_binder.h"
#include "qt/frame_pace.h"
#include "qt/groups_binder.h"
#include "qt/history_binder.h"
#include "qt/log_binder.h"
#include "qt/main_binder.h"
#include "qt/menu_binder.h"
#include "qt/popup_binder.h"
#include "qt/settings_binder.h"
#include "qt/splash_binder.h"
#include "qt/tray_link.h"
#include "qt/units.h"

#include <QObject>

#include <chrono>
#include <initializer_list>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace qt {

/// All windows of one program. They are made equal to the forms whenever the event loop is about to
/// wait, inside boxes too; for datagrams alone sixty times a second at most.
class Shell : public QObject {
public:
    /// All three must outlive the shell.
    Shell(forms::Forms& forms, Codec const& codec, Units const& units);

    /// Gives the tray icon its menu, and keeps the main window within reach where there is no place
    /// for the icon. `tray` must outlive the shell.
    void use_tray(DeskTray& tray);
    /// Makes every window equal to its form; harmless at any time, twice.
    void show();
    /// Shows nothing any more: the program is about to end.
    void freeze() { frozen_ = true; }

    [[nodiscard]] QWidget& main_window() { return main_.window(); }
    /// The message window of this name: "popup0" to "popup9", "popuplast".
    [[nodiscard]] QWidget& popup_window(QString const& name);

private:
    using Command = std::pair<char const*, controls::Command*>;

    void add_popup(forms::Popup& popup, QString const& name);
    void add_hidden_commands();
    void add_commands(QWidget& window, std::initializer_list<Command> commands);
    void follow_pointer();

    forms::Forms& forms_;
    Codec const& codec_;
    Units const& units_;
    MainBinder main_;
    SplashBinder splash_;
    HistoryBinder history_;
    LogBinder log_;
    SettingsBinder settings_;
    GroupsBinder groups_;
    ForwardBinder forward_;
    MenuBinder toolsmenu_;
    MenuBinder closepopups_;
    MenuBinder autores_;
    std::vector<std::unique_ptr<PopupBinder>> popups_;
    std::optional<TrayLink> tray_;
    bool frozen_ = false;
    bool showing_ = false;
    FramePace pace_{std::chrono::milliseconds(16), [this] { show(); }};
};

} // namespace qt
