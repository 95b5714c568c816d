#include "qt/desk_process.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QSettings>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <utility>

namespace qt {

DeskProcess::DeskProcess(Codec const& codec, QString command_line, QString program_folder)
    : codec_(codec), command_line_(std::move(command_line)),
      program_folder_(std::move(program_folder))
{
}

QString DeskProcess::lock_path() const
{
    // In a place that is there from the machine's start, that no environment moves, and that nobody
    // tidies up while it is in use.
    auto const place = QCryptographicHash::hash(
        QFileInfo(program_folder_).canonicalFilePath().toUtf8(), QCryptographicHash::Sha256);
    return QStringLiteral("/dev/shm/vexloim-%1-%2.lock")
        .arg(geteuid())
        .arg(QString::fromLatin1(place.toHex().left(24)));
}

bool DeskProcess::other_copy_runs()
{
    // The lock lives as long as the process: the file is never closed, and a crash leaves no lock
    // behind.
    auto const path = QFile::encodeName(lock_path());
    int const file = open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    return file >= 0 && flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

std::string DeskProcess::command_line() const
{
    return codec_.from_unicode(command_line_);
}

std::string DeskProcess::program_folder() const
{
    return codec_.from_unicode(program_folder_);
}

void DeskProcess::store_setting(std::string_view section, std::string_view name,
                                std::string_view value)
{
    QSettings settings(QStringLiteral("Vexlo"), QStringLiteral("Vexlo IM"));
    settings.beginGroup(codec_.to_unicode(section));
    // The program folder's own path may hold letters that the office's set lacks.
    auto const folder = program_folder();
    settings.setValue(codec_.to_unicode(name),
                      value.starts_with(folder)
                          ? program_folder_ + codec_.to_unicode(value.substr(folder.size()))
                          : codec_.to_unicode(value));
    settings.endGroup();
    settings.sync();
}

void DeskProcess::end(int status)
{
    // At once, from nested event loops too: nothing is unwound, nothing else is written.
    std::fflush(nullptr);
    std::_Exit(status);
}

} // namespace qt
