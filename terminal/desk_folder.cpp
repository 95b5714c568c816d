#include "terminal/desk_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

#include <array>

namespace terminal {

tap::ProgramFolder look_at_folder(QString const& path)
{
    QFileInfo const folder(path);
    QDir const inside(path);
    tap::ProgramFolder seen{.path = path.toStdString(),
                            .exists = folder.isDir(),
                            .has_program = inside.exists(QStringLiteral("vexloim")),
                            .writable = folder.isWritable()};
    static constexpr std::array files{"settings.txt", "users.txt", "groups.txt", "buttons.txt",
                                      "hist.dat"};
    for (char const* const name : files) {
        QFileInfo const file(inside.filePath(QString::fromLatin1(name)));
        if (file.exists() && !file.isReadable()) {
            seen.unreadable.emplace_back(name);
        }
        if (file.exists() && !file.isWritable()) {
            seen.unwritable.emplace_back(name);
        }
    }
    seen.free_bytes = static_cast<std::uint64_t>(QStorageInfo(path).bytesAvailable());
    return seen;
}

} // namespace terminal
