#include "journal.h"

#include "boxes.h"

#include <QEvent>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QWidget>

namespace driver {

Journal::Journal(QString const& path) : file_(path)
{
    clock_.start();
    if (!file_.open(QIODevice::WriteOnly | QIODevice::Append)) {
        qFatal("the record %s cannot be written", qPrintable(path));
    }
}

bool Journal::eventFilter(QObject* object, QEvent* event)
{
    auto const shown = event->type() == QEvent::Show;
    if ((shown || event->type() == QEvent::Hide) && object->isWidgetType()) {
        auto const* const widget = static_cast<QWidget const*>(object);
        // A minimised window gets hide events of the window system too; those are not the
        // program's.
        if (widget->isWindow() && !event->spontaneous()) {
            note_window(shown ? "shown" : "hidden", *widget);
        }
    } else if (event->type() == QEvent::Paint) {
        note_status(*object);
    }
    return false;
}

void Journal::note_window(QString const& what, QWidget const& window)
{
    QJsonObject line{
        {"event", what},
        {"window", window.objectName()},
        {"class", window.metaObject()->className()},
        {"title", window.windowTitle()},
    };
    if (is_box(window)) {
        line["box"] = described_box(window);
    }
    write(line);
}

// The status line keeps a text for no longer than the watch lets it, which may be a moment.
void Journal::note_status(QObject const& painted)
{
    auto const* const label = qobject_cast<QLabel const*>(&painted);
    if (label != nullptr && label->objectName() == "statustext" && label->text() != status_) {
        status_ = label->text();
        write({{"event", "status"}, {"text", status_}});
    }
}

void Journal::write(QJsonObject line)
{
    line["ms"] = clock_.elapsed();
    file_.write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
    file_.flush();
}

} // namespace driver
