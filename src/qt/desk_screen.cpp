#include "qt/desk_screen.h"

#include <QGuiApplication>
#include <QScreen>

namespace qt {

float DeskScreen::width() const
{
    return units_.twips(QGuiApplication::primaryScreen()->geometry().width());
}

float DeskScreen::height() const
{
    return units_.twips(QGuiApplication::primaryScreen()->geometry().height());
}

} // namespace qt
