#include "demo/hang_up.h"
#include "demo/performance.h"

#include <QCommandLineParser>
#include <QDir>
#include <QLoggingCategory>
#include <QPalette>

namespace {

bool has_display()
{
    auto const platform = qgetenv("QT_QPA_PLATFORM");
    return platform.isEmpty() ? qEnvironmentVariableIsSet("DISPLAY") ||
                                    qEnvironmentVariableIsSet("WAYLAND_DISPLAY")
                              : platform != "offscreen" && platform != "minimal";
}

void do_without_display()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Without a screen the toolkit has things to say that are nobody's concern here.
    QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false"));
}

QPalette dark_colours()
{
    QColor const light(223, 225, 229);
    QPalette dark(QColor(60, 63, 67), QColor(43, 45, 48));
    for (auto const role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        dark.setColor(role, light);
        dark.setColor(QPalette::Disabled, role, light.darker());
    }
    dark.setColor(QPalette::Base, QColor(30, 31, 34));
    dark.setColor(QPalette::AlternateBase, QColor(38, 39, 42));
    dark.setColor(QPalette::Highlight, QColor(61, 126, 216));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    return dark;
}

/// The option's number, at least 1; ends the program with its help where it is none.
int number_of(QCommandLineParser& line, QString const& option)
{
    int const number = line.value(option).toInt();
    if (number < 1) {
        line.showHelp(2);
    }
    return number;
}

} // namespace

/// vexlo_demo [--dark] [--stay SECONDS] [--speed N] [FOLDER]
int main(int argc, char** argv)
{
    bool const seen = has_display();
    if (!seen) {
        do_without_display();
    }
    demo::Application application(argc, argv);
    demo::Application::setQuitOnLastWindowClosed(false);
    QCommandLineParser line;
    line.setApplicationDescription("A day in a virtual office, on the real windows.");
    line.addHelpOption();
    line.addOption({"dark", "As on a dark desktop."});
    line.addOption(
        {"stay", "With nobody in front, the office closes after so long.", "SECONDS", "600"});
    line.addOption({"speed", "On a screen, plays so many times as fast.", "N", "1"});
    line.addPositionalArgument("FOLDER", "For the pictures, where there is no display.",
                               "[FOLDER]");
    line.process(application);
    if (line.isSet("dark")) {
        demo::Application::setPalette(dark_colours());
    }
    auto const folder = line.positionalArguments().value(0, QDir::tempPath() + "/vexlo-demo");
    demo::listen_for_hang_up();
    demo::Performance performance(application,
                                  {.pace = seen ? demo::Pace::as_seen : demo::Pace::at_once,
                                   .pictures = QDir(folder).absolutePath(),
                                   .stay = std::chrono::seconds(number_of(line, "stay")),
                                   .speed = number_of(line, "speed")});
    return performance.play() ? 0 : 1;
}
