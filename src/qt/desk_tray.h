#pragma once

#include "platform/tray_icon.h"
#include "qt/codec.h"

#include <QObject>
#include <QSystemTrayIcon>

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

private:
    void activated(QSystemTrayIcon::ActivationReason reason);

    Codec const& codec_;
    QSystemTrayIcon icon_;
};

} // namespace qt
