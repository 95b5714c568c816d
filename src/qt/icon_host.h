#pragma once

#include <QDBusMessage>
#include <QString>

namespace qt {

/// Where the session bus tells who shows the icons of the notification area.
struct IconHost {
    static QString service() { return QStringLiteral("org.kde.StatusNotifierWatcher"); }
    static QString path() { return QStringLiteral("/StatusNotifierWatcher"); }

    /// For an answer, in milliseconds.
    static constexpr int patience = 1000;

    /// Asks whether there is anybody.
    [[nodiscard]] static QDBusMessage question();
    [[nodiscard]] static bool is_yes(QDBusMessage const& answer);
};

/// Whether somebody shows icons that come over the session bus. Waits for the answer.
[[nodiscard]] bool bus_has_icon_host();

} // namespace qt
