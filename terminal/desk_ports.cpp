#include "terminal/desk_ports.h"

#include "tap/checks/bound_ports.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <optional>

namespace terminal {

namespace {

std::string content_of(QString const& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

std::optional<tap::BoundPort> bound(int number)
{
    for (char const* const table : {"/proc/self/net/udp", "/proc/self/net/udp6"}) {
        auto const all = tap::bound_ports(content_of(QString::fromLatin1(table)));
        auto const found = std::ranges::find(all, number, &tap::BoundPort::port);
        if (found != all.end()) {
            return *found;
        }
    }
    return {};
}

bool holds_socket(QString const& process, QString const& socket)
{
    QDir const descriptors(process + QStringLiteral("/fd"));
    auto const names =
        descriptors.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    return std::ranges::any_of(names, [&](QString const& name) {
        return QFile::symLinkTarget(descriptors.filePath(name)).endsWith(socket);
    });
}

} // namespace

tap::Port look_at_port(int number, QString const& messenger)
{
    tap::Port port{.number = number};
    auto const row = bound(number);
    if (!row) {
        return port;
    }
    port.holder = tap::Holder{.drops = row->drops};
    auto const socket = QStringLiteral("socket:[%1]").arg(row->inode);
    QDir const processes(QStringLiteral("/proc"));
    for (QString const& name : processes.entryList({QStringLiteral("[1-9]*")}, QDir::Dirs)) {
        auto const process = processes.filePath(name);
        if (holds_socket(process, socket)) {
            QFileInfo const executable(QFile::symLinkTarget(process + QStringLiteral("/exe")));
            port.holder->process = name.toLong();
            port.holder->name = executable.fileName().toStdString();
            port.holder->is_messenger = executable == QFileInfo(messenger);
            break;
        }
    }
    return port;
}

} // namespace terminal
