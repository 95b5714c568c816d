#include "qt/icon_host.h"

#include <QDBusConnection>
#include <QDBusVariant>

namespace qt {

QDBusMessage IconHost::question()
{
    auto ask = QDBusMessage::createMethodCall(service(), path(),
                                              QStringLiteral("org.freedesktop.DBus.Properties"),
                                              QStringLiteral("Get"));
    ask.setAutoStartService(false);
    return ask << service() << QStringLiteral("IsStatusNotifierHostRegistered");
}

bool IconHost::is_yes(QDBusMessage const& answer)
{
    return answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty() &&
           answer.arguments().constFirst().value<QDBusVariant>().variant().toBool();
}

bool bus_has_icon_host()
{
    auto const bus = QDBusConnection::sessionBus();
    return bus.isConnected() &&
           IconHost::is_yes(bus.call(IconHost::question(), QDBus::Block, IconHost::patience));
}

} // namespace qt
