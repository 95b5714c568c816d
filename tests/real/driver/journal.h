#pragma once

#include <QElapsedTimer>
#include <QFile>
#include <QObject>

namespace driver {

/// Keeps a record of every window and box that was shown or hidden, however briefly, one JSON line
/// an event, in a file that outlives the program.
class Journal : public QObject {
public:
    explicit Journal(QString const& path);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void note(QString const& what, QWidget const& window);

    QElapsedTimer clock_;
    QFile file_;
};

} // namespace driver
