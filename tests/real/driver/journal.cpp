#include "journal.h"

#include "boxes.h"

#include <QEvent>
#include <QJsonDocument>
#include <QJsonObject>
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
            note(shown ? "shown" : "hidden", *widget);
        }
    }
    return false;
}

void Journal::note(QString const& what, QWidget const& window)
{
    QJsonObject line{
        {"ms", clock_.elapsed()},        {"event", what},
        {"window", window.objectName()}, {"class", window.metaObject()->className()},
        {"title", window.windowTitle()},
    };
    if (window.isModal()) {
        line["box"] = described_box(window);
    }
    file_.write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
    file_.flush();
}

} // namespace driver
