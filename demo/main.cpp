#include "demo/stage.h"
#include "demo/story.h"

#include <QApplication>
#include <QDir>
#include <QLoggingCategory>

#include <cstdio>
#include <exception>

namespace {

bool has_display()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

} // namespace

/// vexlo_demo [FOLDER]: plays the first exchange and leaves pictures of the windows in FOLDER.
int main(int argc, char** argv)
{
    using Pace = demo::Stage::Pace;
    bool const seen = has_display() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    if (!seen) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        // Without a screen the toolkit has things to say that are nobody's concern here.
        QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false"));
    }
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    auto const folder = argc > 1 ? QString::fromLocal8Bit(argv[1])
                                 : QDir::tempPath() + QStringLiteral("/vexlo-demo");
    try {
        demo::Stage stage(seen ? Pace::as_seen : Pace::at_once, QDir(folder).absolutePath());
        bool const as_told = demo::play_first_exchange(stage);
        if (seen) {
            std::printf("\nThe windows stay for half a minute.\n");
            std::fflush(stdout);
            stage.pass(std::chrono::seconds(30));
        }
        return as_told ? 0 : 1;
    } catch (std::exception const& failure) {
        std::fprintf(stderr, "The demo stopped: %s\n", failure.what());
        return 1;
    }
}
