#pragma once

#include "platform/tray_icon.h"
#include "qt/codec.h"

#include <QMenu>
#include <QObject>
#include <QSystemTrayIcon>

#include <cstdint>

namespace qt {

/// The icon in the desktop's notification area. It is made in any case, whether or not there is
/// such an area yet.
class DeskTray : public QObject, public platform::TrayIcon {
public:
    explicit DeskTray(Codec const& codec);

    void add(Image image, std::string_view tip) override;
    void set_image(Image image) override;
    void set_tip(std::string_view tip) override;
    void remove() override;

    /// What a right click pops up. Some desktops show a menu of their own in its stead, with the
    /// same entries. `menu` must outlive the icon.
    void set_menu(QMenu& menu) { icon_.setContextMenu(&menu); }

    /// The window in the panel that shows the icon; 0 where the panel draws it itself.
    [[nodiscard]] static std::uintptr_t window();
    /// The icon hears its clicks while a box is open, too, wherever it is a window of ours.
    static void stay_in_reach();

private:
    void activated(QSystemTrayIcon::ActivationReason reason);

    Codec const& codec_;
    QSystemTrayIcon icon_;
};

} // namespace qt
