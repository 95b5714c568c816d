#include "terminal/desk.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace terminal {

QString program_folder_of(Options const& options)
{
    auto const option = QStringLiteral("folder");
    if (!options.has(option)) {
        return QCoreApplication::applicationDirPath();
    }
    auto const folder = options.value(option);
    if (!QFileInfo(folder).isDir()) {
        throw WrongUsage{QStringLiteral("there is no folder \"%1\"").arg(folder)};
    }
    return QDir(folder).absolutePath();
}

Desk::Desk(Options const& options)
    : program_folder(program_folder_of(options)), codec(qt::code_page_of(QLocale::system())),
      letters(codec.letters()), environment(codec), files(codec, program_folder),
      folder(codec.from_unicode(program_folder), files, environment, letters)
{
    folder.read();
    if (options.has(QStringLiteral("name"))) {
        folder.set_name(codec.from_unicode(options.value(QStringLiteral("name"))));
    }
    if (auto const port = options.number(QStringLiteral("port"), 1, 65535)) {
        folder.set_port(*port);
    }
}

} // namespace terminal
