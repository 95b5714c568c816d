#include "qt/desk_session.h"

#include "qt/exec_line.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <csignal>
#include <unistd.h>

namespace qt {

namespace {

/// The value of "Exec" in a desktop entry; what other groups of the file say is not looked at.
QString exec_value(QByteArray const& content)
{
    bool in_entry = false;
    for (QByteArray const& line : content.split('\n')) {
        auto const equals = line.indexOf('=');
        if (line.startsWith('[')) {
            in_entry = line.trimmed() == "[Desktop Entry]";
        } else if (in_entry && equals > 0 && line.first(equals).trimmed() == "Exec") {
            return QString::fromUtf8(line.sliced(equals + 1).trimmed());
        }
    }
    return {};
}

} // namespace

QString DeskSessionEntries::path(std::string_view name) const
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/autostart/") + codec_.to_unicode(name) + QStringLiteral(".desktop");
}

std::string DeskSessionEntries::read(std::string_view name) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return codec_.from_unicode(command_of(exec_value(file.readAll())));
}

bool DeskSessionEntries::write(std::string_view name, std::string_view command)
{
    QString const place = path(name);
    QFile file(place);
    if (!QDir().mkpath(QFileInfo(place).absolutePath()) ||
        !file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        return false;
    }
    QByteArray const content = "[Desktop Entry]\nType=Application\nName=Vexlo Instant Messaging\n"
                               "Exec=" +
                               exec_line(real(command)).toUtf8() + "\nTerminal=false\n";
    return file.write(content) == content.size() && file.flush();
}

QString DeskSessionEntries::real(std::string_view command) const
{
    if (command.starts_with('"')) {
        return u'"' + files_.real(command.substr(1));
    }
    return files_.real(command);
}

bool DeskSessionEntries::remove(std::string_view name)
{
    return QFile::remove(path(name));
}

std::vector<platform::Processes::Entry> DeskProcesses::others() const
{
    std::vector<Entry> entries;
    for (QString const& folder : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        bool is_process = false;
        long const id = folder.toLong(&is_process);
        QFileInfo const process(QStringLiteral("/proc/") + folder);
        if (!is_process || id == getpid() || process.ownerId() != geteuid()) {
            continue;
        }
        // The link names the whole file; the kernel's short name is cut at fifteen characters.
        QString executable = QFileInfo(process.filePath() + QStringLiteral("/exe")).symLinkTarget();
        if (executable.endsWith(QStringLiteral(" (deleted)"))) {
            executable.chop(10);
        }
        entries.push_back(
            {.id = id, .executable = codec_.from_unicode(QFileInfo(executable).fileName())});
    }
    return entries;
}

void DeskProcesses::kill(long id)
{
    ::kill(static_cast<pid_t>(id), SIGKILL);
}

} // namespace qt
