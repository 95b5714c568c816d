#pragma once

#include "terminal/printer.h"

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

#include <chrono>
#include <cstddef>
#include <optional>
#include <vector>

namespace terminal {

/// A command line that makes no sense. `main` tells the words and ends with wrong_usage.
struct WrongUsage {
    QString words;
};

/// The command line of one command: the options that every command knows, and its own.
class Options {
public:
    /// `operands` are what stands behind the options: "[TEXT]...".
    Options(QString command, QString summary, QString operands = {});

    void add_switch(QString const& name, QString const& words);
    /// `value` names the value in the help; `fallback` is what holds without the option.
    void add_value(QString const& name, QString const& value, QString const& words,
                   QString const& fallback = {});

    /// Takes the arguments apart. `--help` is answered here, and ends the process. Raises
    /// WrongUsage.
    void take(QStringList const& arguments);

    [[nodiscard]] bool has(QString const& name) const { return parser_.isSet(name); }
    [[nodiscard]] QString value(QString const& name) const { return parser_.value(name); }
    [[nodiscard]] QStringList values(QString const& name) const { return parser_.values(name); }
    [[nodiscard]] QStringList operands() const { return parser_.positionalArguments(); }

    /// A whole number in these bounds; empty without the option and without a fallback. Raises
    /// WrongUsage for anything else.
    [[nodiscard]] std::optional<int> number(QString const& name, int least, int most) const;
    /// The same for a time: "5", "0.5".
    [[nodiscard]] std::optional<std::chrono::milliseconds> seconds(QString const& name) const;

    /// `--json` or words.
    [[nodiscard]] Printer printer() const;

private:
    struct Line {
        QString head;
        QString words;
    };

    [[nodiscard]] QString help() const;

    QString command_;
    QString summary_;
    QString operands_;
    std::vector<Line> lines_;
    std::ptrdiff_t common_ = 0; ///< lines of what every command knows; they come first
    QCommandLineParser parser_;
};

} // namespace terminal
