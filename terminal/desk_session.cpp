#include "terminal/desk_session.h"

#include "terminal/tray_on_screen.h"

#include "desktop/session_start.h"
#include "qt/desk_session.h"
#include "qt/icon_host.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace terminal {

namespace {

/// The first word of a command, which may stand between double quotes.
QString program_of(QString const& command)
{
    if (command.startsWith(QLatin1Char('"'))) {
        return command.section(QLatin1Char('"'), 1, 1);
    }
    return command.section(QLatin1Char(' '), 0, 0);
}

bool has_sound_server()
{
    auto const folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    static constexpr std::array servers{"/pulse/native", "/pipewire-0"};
    return qEnvironmentVariableIsSet("PULSE_SERVER") ||
           std::ranges::any_of(servers, [&](char const* const server) {
               return QFileInfo::exists(folder + QString::fromLatin1(server));
           });
}

} // namespace

tap::TrayHost look_at_tray()
{
    return {.has_desktop = qEnvironmentVariableIsSet("DISPLAY") ||
                           qEnvironmentVariableIsSet("WAYLAND_DISPLAY"),
            .on_bus = qt::bus_has_icon_host(),
            .on_screen = tray_is_on_screen(),
            .desktop = qEnvironmentVariable("XDG_CURRENT_DESKTOP").toStdString()};
}

tap::SoundWay look_at_sound(Desk const& desk, forms::FrmMain const& frmMain)
{
    constexpr qint64 head_size = 12;
    auto const path = desk.files.real(frmMain.wavefile);
    tap::SoundWay way{.switched_on = frmMain.Check2.on(),
                      .file = path.toStdString(),
                      .has_server = has_sound_server()};
    QFile file(path);
    if (!path.isEmpty() && file.open(QIODevice::ReadOnly)) {
        way.head = file.read(head_size).toStdString();
    }
    return way;
}

tap::SessionEntry look_at_session(Desk const& desk, bool wanted, QString const& program)
{
    qt::DeskSessionEntries const entries(desk.codec, desk.files);
    auto const command = entries.read(desktop::session_entry);
    QFileInfo const named(program_of(desk.codec.to_unicode(command)));
    return {.wanted = wanted,
            .file = entries.path(desktop::session_entry).toStdString(),
            .command = desk.codec.to_unicode(command).toStdString(),
            .program = named.filePath().toStdString(),
            .program_runs = named.isFile() && named.isExecutable(),
            .own_program = program.toStdString(),
            .is_own = named.canonicalFilePath() == QFileInfo(program).canonicalFilePath()};
}

} // namespace terminal
