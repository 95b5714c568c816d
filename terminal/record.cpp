#include "terminal/record.h"

#include "tap/capture.h"
#include "terminal/desk.h"
#include "terminal/exit_status.h"
#include "terminal/hearing.h"
#include "terminal/readable.h"

#include "text/failure.h"

#include <QDateTime>
#include <QFile>

namespace terminal {

namespace {

/// A new file whose lines are on the disk's side of the program as soon as they are written: what
/// ends the program takes nothing away.
class CaptureFile {
public:
    /// Raises a Failure where the file cannot be made, or is there already.
    explicit CaptureFile(QString const& path) : file_(path)
    {
        if (!file_.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered)) {
            refuse();
        }
        write(std::string(tap::capture::head) + "\n");
    }

    void write(std::string const& lines)
    {
        auto const size = static_cast<qint64>(lines.size());
        if (file_.write(lines.data(), size) != size) {
            refuse();
        }
    }

private:
    [[noreturn]] void refuse() const
    {
        throw text::Failure(
            (file_.fileName() + QStringLiteral(": ") + file_.errorString()).toStdString(), 0,
            "capture");
    }

    QFile file_;
};

} // namespace

int record(QStringList const& arguments)
{
    Options options(QStringLiteral("record"),
                    QStringLiteral("Keeps every datagram on the segment in a new capture file."),
                    QStringLiteral("FILE"));
    add_bounds(options);
    options.take(arguments);
    auto const path = capture_path(options);
    Desk const desk(options);
    auto const bounds = bounds_of(options);
    auto const ear = ear_for(desk, QStringLiteral("record"), arguments);
    if (!ear) {
        return in_use;
    }
    CaptureFile file(path);
    auto const now = QDateTime::currentDateTime().toString(Qt::ISODate);
    file.write(tap::capture::comment("recorded " + now.toStdString()));
    auto const heard = hear(*ear, bounds, [&](tap::Datagram const& datagram) {
        file.write(tap::capture::line(datagram));
    });
    options.printer().tell(
        datagrams(heard.count) + QStringLiteral(" in ") + path,
        {{QStringLiteral("recorded"), heard.count}, {QStringLiteral("file"), path}});
    return status_of(heard);
}

} // namespace terminal
