#include "qt/desk_panel.h"

#include "qt/icon_host.h"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QGuiApplication>
#include <QSystemTrayIcon>

namespace qt {

DeskPanel::DeskPanel()
{
    if (bus_has_icon_host()) {
        // The toolkit makes the same choice at the same time, and stays with it.
        on_bus_ = has_host_ = true;
        listen_to_bus();
    }
}

void DeskPanel::listen_to_bus()
{
    auto bus = QDBusConnection::sessionBus();
    auto* const owner = new QDBusServiceWatcher(IconHost::service(), bus,
                                                QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(owner, &QDBusServiceWatcher::serviceOwnerChanged, this, &DeskPanel::ask_host);
    for (char const* const news :
         {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
        bus.connect(IconHost::service(), IconHost::path(), IconHost::service(),
                    QString::fromLatin1(news), this, SLOT(ask_host()));
    }
}

void DeskPanel::ask_host()
{
    auto* const answer = new QDBusPendingCallWatcher(
        QDBusConnection::sessionBus().asyncCall(IconHost::question(), IconHost::patience), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher* finished) {
                has_host_ = IconHost::is_yes(finished->reply());
                finished->deleteLater();
                Q_EMIT changed();
            });
}

bool DeskPanel::takes_icons() const
{
    auto const desktop = QGuiApplication::platformName();
    if (desktop != QLatin1String("xcb") && !desktop.startsWith(QLatin1String("wayland"))) {
        return true;
    }
    return on_bus_ ? has_host_ : QSystemTrayIcon::isSystemTrayAvailable();
}

} // namespace qt
