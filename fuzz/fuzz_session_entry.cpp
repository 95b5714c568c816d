#include "fuzz/check.h"
#include "fuzz/pieces.h"
#include "fuzz/target.h"
#include "qt/desk_session.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <string>
#include <string_view>

namespace {

using fuzz::check;

constexpr char const* name = "entry";

/// A home with nothing in it but the entry.
struct Home {
    Home()
    {
        QDir(folder.path()).mkdir(QStringLiteral("autostart"));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
    }

    void put(std::string_view content) const
    {
        QFile file(folder.filePath(QStringLiteral("autostart/entry.desktop")));
        check(file.open(QIODevice::WriteOnly), "there is a home");
        file.write(content.data(), static_cast<qsizetype>(content.size()));
    }

    QTemporaryDir folder;
    qt::Codec codec{1252};
    qt::DeskFiles files{codec, QStringLiteral("/opt/vexlo")};
    qt::DeskSessionEntries entries{codec, files};
};

void run(std::string_view file, std::string_view program_folder)
{
    static Home home;
    home.put(file);
    auto const found = home.entries.read(name);
    check(found.empty() || file.find("Exec") != file.npos, "a command is behind its key");

    auto const command = "\"" + std::string(program_folder) + "/vexloim.exe\" /m";
    check(home.entries.write(name, command), "an entry can be written");
    check(home.entries.read(name) == command, "an entry is read as it was told");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size)
{
    fuzz::Pieces pieces(fuzz::as_text(bytes, size));
    auto const file = pieces.next();
    run(file, pieces.next());
    return 0;
}
