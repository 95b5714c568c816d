#include "terminal/options.h"

#include "terminal/exit_status.h"

#include <QCommandLineOption>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace terminal {

namespace {

QString quoted(QString const& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

} // namespace

Options::Options(QString command, QString summary, QString operands)
    : command_(std::move(command)), summary_(std::move(summary)), operands_(std::move(operands))
{
    add_switch(QStringLiteral("help"), QStringLiteral("shows this"));
    add_value(QStringLiteral("folder"), QStringLiteral("DIR"),
              QStringLiteral("the messenger's folder: its settings, names and groups"));
    add_value(QStringLiteral("name"), QStringLiteral("NAME"),
              QStringLiteral("the own display name, instead of that of settings.txt"));
    add_value(QStringLiteral("port"), QStringLiteral("N"),
              QStringLiteral("the office's port, instead of that of settings.txt or 4111"));
    add_switch(QStringLiteral("json"), QStringLiteral("one JSON object a line, for programs"));
    common_ = static_cast<std::ptrdiff_t>(lines_.size());
}

void Options::add_switch(QString const& name, QString const& words)
{
    parser_.addOption(QCommandLineOption(name));
    lines_.push_back({QStringLiteral("--") + name, words});
}

void Options::add_value(QString const& name, QString const& value, QString const& words,
                        QString const& fallback)
{
    parser_.addOption(QCommandLineOption(name, {}, value, fallback));
    lines_.push_back({QStringLiteral("--") + name + QLatin1Char(' ') + value,
                      fallback.isEmpty() ? words
                                         : words + QStringLiteral(" (") + fallback +
                                               QStringLiteral(" otherwise)")});
}

void Options::take(QStringList const& arguments)
{
    bool const understood = parser_.parse(QStringList{command_} + arguments);
    if (has(QStringLiteral("help"))) {
        std::fputs(help().toUtf8().constData(), stdout);
        std::exit(done);
    }
    if (!understood) {
        throw WrongUsage{parser_.errorText()};
    }
    if (operands_.isEmpty() && !operands().isEmpty()) {
        throw WrongUsage{QStringLiteral("what is ") + quoted(operands().constFirst()) +
                         QLatin1Char('?')};
    }
}

std::optional<int> Options::number(QString const& name, int least, int most) const
{
    auto const text = value(name);
    if (!has(name) && text.isEmpty()) {
        return std::nullopt;
    }
    bool is_number = false;
    int const found = text.toInt(&is_number);
    if (!is_number || found < least || found > most) {
        throw WrongUsage{QStringLiteral("--%1 takes a number from %2 to %3, not ")
                             .arg(name)
                             .arg(least)
                             .arg(most) +
                         quoted(text)};
    }
    return found;
}

std::optional<std::chrono::milliseconds> Options::seconds(QString const& name) const
{
    constexpr double longest = 7 * 24 * 3600;
    auto const text = value(name);
    if (!has(name) && text.isEmpty()) {
        return std::nullopt;
    }
    bool is_number = false;
    double const found = text.toDouble(&is_number);
    // Written so that what is no number at all fails, too.
    if (!is_number || !(found >= 0 && found <= longest)) {
        throw WrongUsage{
            QStringLiteral("--%1 takes seconds, a week of them at most, not ").arg(name) +
            quoted(text)};
    }
    return std::chrono::milliseconds(std::llround(found * 1000));
}

Printer Options::printer() const
{
    return Printer(has(QStringLiteral("json")) ? Printer::Form::json : Printer::Form::words);
}

QString Options::help() const
{
    QString text = QStringLiteral("Usage: vexlotap %1 [OPTION]...").arg(command_);
    if (!operands_.isEmpty()) {
        text += QLatin1Char(' ') + operands_;
    }
    text += QLatin1Char('\n') + summary_ + QStringLiteral("\n\n");
    auto const widest =
        std::ranges::max(lines_, {}, [](Line const& line) { return line.head.size(); }).head.size();
    auto lines = lines_; // The command's own ones first.
    std::rotate(lines.begin(), lines.begin() + common_, lines.end());
    for (auto const& line : lines) {
        text += QStringLiteral("  ") + line.head.leftJustified(widest + 2) + line.words +
                QLatin1Char('\n');
    }
    return text;
}

} // namespace terminal
