#pragma once

#include <QObject>

namespace qt {

/// The panel of this desktop, as far as it takes tray icons.
class DeskPanel : public QObject {
    Q_OBJECT

public:
    DeskPanel();

    /// Whether the program's icon is seen there now. Where there is no desktop at all, as in tests,
    /// nothing is missing.
    [[nodiscard]] bool takes_icons() const;

Q_SIGNALS:
    /// It is worth another look.
    void changed();

private Q_SLOTS:
    void ask_host();

private:
    void listen_to_bus();

    bool on_bus_ = false;   ///< icons go over the session bus, for the whole run
    bool has_host_ = false; ///< and somebody shows them
};

} // namespace qt
