#include "qt/desk_outside.h"

#include "text/failure.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QProcess>
#include <QUrl>

namespace qt {

namespace {

[[noreturn]] void refuse()
{
    throw text::Failure("File not found", 53, "outside");
}

} // namespace

void DeskOutside::open(std::string_view path) const
{
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(files_.real(path)))) {
        refuse();
    }
}

void DeskOutside::open_help()
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(QCoreApplication::applicationDirPath() +
                                                  QStringLiteral("/help/index.html")));
}

void DeskOutside::open_web(std::string_view address)
{
    QDesktopServices::openUrl(QUrl(codec_.to_unicode(address)));
}

void DeskOutside::copy(std::string_view text)
{
    QGuiApplication::clipboard()->setText(
        codec_.to_unicode(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
}

void DeskOutside::start(std::string_view path)
{
    if (!QProcess::startDetached(files_.real(path), {})) {
        refuse();
    }
}

} // namespace qt
