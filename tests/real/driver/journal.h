#pragma once

#include <QElapsedTimer>
#include <QFile>
#include <QJsonObject>
#include <QObject>
#include <QString>

namespace driver {

/// Keeps a record of every window and box that was shown or hidden and of every text of the status
/// line, however briefly, one JSON line an event, in a file that outlives the program.
class Journal : public QObject {
public:
    explicit Journal(QString const& path);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void note_window(QString const& what, QWidget const& window);
    void note_status(QObject const& painted);
    void write(QJsonObject line);

    QElapsedTimer clock_;
    QFile file_;
    QString status_;
};

} // namespace driver
