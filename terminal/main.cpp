#include "terminal/commands.h"
#include "terminal/exit_status.h"
#include "terminal/options.h"
#include "terminal/printer.h"

#include "core/version.h"
#include "text/failure.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <algorithm>
#include <cstdio>

namespace {

void print(QString const& text)
{
    std::fputs(text.toUtf8().constData(), stdout);
}

void print_help()
{
    constexpr int name_width = 10;
    print(QStringLiteral("Usage: vexlotap COMMAND [OPTION]...\n"
                         "Hears and speaks on the messenger's network, without a window.\n\n"));
    for (auto const& command : terminal::commands()) {
        print(QStringLiteral("  ") + command.name.leftJustified(name_width) + command.summary +
              QLatin1Char('\n'));
    }
    print(QStringLiteral("\n`vexlotap COMMAND --help` tells more. The manual: `man vexlotap`.\n"));
}

/// What a command raises becomes a complaint and an end.
int run(terminal::Command const& command, QStringList const& arguments)
{
    try {
        return command.run(arguments);
    } catch (terminal::WrongUsage const& wrong) {
        terminal::Printer::complain(
            QStringLiteral("%1 (see `vexlotap %2 --help`)").arg(wrong.words, command.name));
        return terminal::wrong_usage;
    } catch (text::Failure const& failure) {
        bool const is_in_use = failure.text == text::address_in_use;
        terminal::Printer::complain(
            is_in_use ? QStringLiteral("another program holds the port, and only a privileged "
                                       "process may listen beside it")
                      : QString::fromStdString(failure.text));
        return is_in_use ? terminal::in_use : terminal::failed;
    }
}

int run(QStringList const& arguments)
{
    auto const name = arguments.value(0);
    if (name == QLatin1String("--version")) {
        print(QStringLiteral("vexlotap %1.%2.%3\n")
                  .arg(core::major_version)
                  .arg(core::minor_version)
                  .arg(core::revision));
        return terminal::done;
    }
    if (name == QLatin1String("--help")) {
        print_help();
        return terminal::done;
    }
    auto const& all = terminal::commands();
    auto const command = std::ranges::find(all, name, &terminal::Command::name);
    if (command == all.end()) {
        auto const complaint = name.isEmpty() ? QStringLiteral("a command is wanted")
                                              : QStringLiteral("no such command: \"%1\"").arg(name);
        terminal::Printer::complain(complaint + QStringLiteral("; see `vexlotap --help`"));
        return terminal::wrong_usage;
    }
    return run(*command, arguments.mid(1));
}

/// The status of the process: what could not be told has not been done.
int with_all_told(int status)
{
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) {
        return status;
    }
    terminal::Printer::complain(QStringLiteral("standard output cannot be written"));
    return terminal::failed;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vexlotap"));
    // What the messenger's parts note for a developer would stand between the lines of a command.
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    return with_all_told(run(QCoreApplication::arguments().mid(1)));
}
