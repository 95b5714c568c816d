#include "qt/desk_panel.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QSystemTrayIcon>

namespace qt {

namespace {

constexpr int answer_ms = 1000;

QString service()
{
    return QStringLiteral("org.kde.StatusNotifierWatcher");
}

QString path()
{
    return QStringLiteral("/StatusNotifierWatcher");
}

QDBusMessage question()
{
    auto ask = QDBusMessage::createMethodCall(service(), path(),
                                              QStringLiteral("org.freedesktop.DBus.Properties"),
                                              QStringLiteral("Get"));
    ask.setAutoStartService(false);
    return ask << service() << QStringLiteral("IsStatusNotifierHostRegistered");
}

bool is_yes(QDBusMessage const& answer)
{
    return answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty() &&
           answer.arguments().constFirst().value<QDBusVariant>().variant().toBool();
}

} // namespace

DeskPanel::DeskPanel()
{
    auto const bus = QDBusConnection::sessionBus();
    if (bus.isConnected() && is_yes(bus.call(question(), QDBus::Block, answer_ms))) {
        // The toolkit makes the same choice at the same time, and stays with it.
        on_bus_ = has_host_ = true;
        listen_to_bus();
    }
}

void DeskPanel::listen_to_bus()
{
    auto bus = QDBusConnection::sessionBus();
    auto* const owner =
        new QDBusServiceWatcher(service(), bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(owner, &QDBusServiceWatcher::serviceOwnerChanged, this, &DeskPanel::ask_host);
    for (char const* const news :
         {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
        bus.connect(service(), path(), service(), QString::fromLatin1(news), this,
                    SLOT(ask_host()));
    }
}

void DeskPanel::ask_host()
{
    auto* const answer = new QDBusPendingCallWatcher(
        QDBusConnection::sessionBus().asyncCall(question(), answer_ms), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher* finished) {
                has_host_ = is_yes(finished->reply());
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
