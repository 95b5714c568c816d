#include "qt/desk_process.h"

#include <QCryptographicHash>
#include <QDir>
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

namespace {

/// One name for this user and this program folder, in a place that the environment cannot move.
QString lock_path(QString const& program_folder)
{
    auto const user = QString::number(geteuid());
    QString const own_runtime = QStringLiteral("/run/user/") + user;
    QString const folder =
        QFileInfo(own_runtime).isWritable() ? own_runtime : QStringLiteral("/tmp");
    auto const place = QCryptographicHash::hash(
        QFileInfo(program_folder).canonicalFilePath().toUtf8(), QCryptographicHash::Sha256);
    return folder + QStringLiteral("/vexloim-") + user + QLatin1Char('-') +
           QString::fromLatin1(place.toHex().left(24)) + QStringLiteral(".lock");
}

} // namespace

DeskProcess::DeskProcess(Codec const& codec, QString command_line, QString program_folder)
    : codec_(codec), command_line_(std::move(command_line)),
      program_folder_(std::move(program_folder))
{
}

bool DeskProcess::other_copy_runs()
{
    // The lock lives as long as the process: the file is never closed, and a crash leaves no lock
    // behind.
    auto const path = QFile::encodeName(lock_path(program_folder_));
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
    settings.setValue(codec_.to_unicode(name), codec_.to_unicode(value));
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
