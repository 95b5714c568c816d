// Loaded in front of the unchanged program (LD_PRELOAD), this lets a test look at its windows and
// act on them with mouse and keys. It does nothing where VEXLO_DRIVER_SOCKET names no socket.

#include "journal.h"
#include "objects.h"
#include "server.h"

#include <QCoreApplication>
#include <QWidget>

#include <memory>

namespace driver {
namespace {

QString wanted_path()
{
    static auto const path = qEnvironmentVariable("VEXLO_DRIVER_SOCKET");
    return path;
}

[[gnu::constructor]] void load()
{
    if (!wanted_path().isEmpty()) {
        watch_objects();
    }
    // What the program starts is not driven.
    qunsetenv("VEXLO_DRIVER_SOCKET");
    qunsetenv("LD_PRELOAD");
}

void start()
{
    if (wanted_path().isEmpty()) {
        return;
    }
    auto* const journal = new Journal(wanted_path() + ".journal");
    journal->setParent(QCoreApplication::instance());
    QCoreApplication::instance()->installEventFilter(journal);
    auto* const server = new Server(wanted_path());
    server->setParent(QCoreApplication::instance());
}

Q_COREAPP_STARTUP_FUNCTION(start)

} // namespace
} // namespace driver
