#include "qt/desk_tray.h"

#include <QApplication>
#include <QIcon>
#include <QWidget>
#include <QWindow>

namespace qt {

namespace {

QIcon picture(platform::TrayIcon::Image image)
{
    using Image = platform::TrayIcon::Image;
    auto const* const name = image == Image::normal    ? "normal"
                             : image == Image::waiting ? "waiting"
                                                       : "away";
    QIcon icon;
    for (int const size : {16, 22, 24, 32, 48, 64}) {
        icon.addFile(QStringLiteral(":/art/tray-%1-%2.png").arg(QLatin1String(name)).arg(size));
    }
    return icon;
}

/// The toolkit's own widget for the icon, where it has one.
QWidget* icon_widget()
{
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->inherits("QSystemTrayIconSys")) {
            return widget;
        }
    }
    return nullptr;
}

} // namespace

DeskTray::DeskTray(Codec const& codec) : codec_(codec)
{
    icon_.setObjectName(QStringLiteral("tray"));
    connect(&icon_, &QSystemTrayIcon::activated, this, &DeskTray::activated);
}

void DeskTray::add(Image image, std::string_view tip)
{
    set_image(image);
    set_tip(tip);
    icon_.show();
}

void DeskTray::set_image(Image image)
{
    icon_.setIcon(picture(image));
}

void DeskTray::set_tip(std::string_view tip)
{
    icon_.setToolTip(codec_.to_unicode(tip));
}

void DeskTray::remove()
{
    icon_.hide();
}

std::uintptr_t DeskTray::window()
{
    auto const* const widget = icon_widget();
    return widget == nullptr ? 0 : widget->internalWinId();
}

void DeskTray::stay_in_reach()
{
    auto const* const widget = icon_widget();
    QWindow* const icon = widget == nullptr ? nullptr : widget->windowHandle();
    QWindow* const box = QGuiApplication::modalWindow();
    if (icon != nullptr && icon->transientParent() != box) {
        icon->setTransientParent(box); // A box stands in the way of all windows but its own.
    }
}

void DeskTray::activated(QSystemTrayIcon::ActivationReason reason)
{
    switch (reason) {
    case QSystemTrayIcon::Trigger:
        left_pressed();
        break;
    case QSystemTrayIcon::DoubleClick:
        double_clicked();
        break;
    case QSystemTrayIcon::Context:
        right_released();
        break;
    default:
        break;
    }
}

} // namespace qt
