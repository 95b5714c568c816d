#include "qt/icons.h"

#include <QPainter>
#include <QPixmap>

namespace qt {

QIcon glyph(QString const& name, QColor const& colour)
{
    QIcon icon;
    for (int const size : {16, 32}) {
        QPixmap mask(QStringLiteral(":/art/glyph-%1-%2.png").arg(name).arg(size));
        QPainter painter(&mask);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(mask.rect(), colour);
        painter.end();
        icon.addPixmap(mask);
    }
    return icon;
}

void Glyph::set_name(QString const& name)
{
    name_ = name;
    icons_.clear();
}

QIcon const& Glyph::icon(QColor const& colour)
{
    auto found = icons_.find(colour.rgba());
    if (found == icons_.end()) {
        found = icons_.insert(colour.rgba(), glyph(name_, colour));
    }
    return *found;
}

QIcon window_icon(QString const& name)
{
    QIcon icon;
    for (int const size : {16, 22, 24, 32, 48, 64}) {
        icon.addFile(QStringLiteral(":/art/%1-%2.png").arg(name).arg(size));
    }
    return icon;
}

} // namespace qt
