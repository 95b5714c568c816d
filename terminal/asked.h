#pragma once

#include <QStringList>

#include <optional>

namespace terminal {

/// What another program of this machine answers.
struct Answer {
    int status = 0;
    QString text; ///< its standard output
};

/// Runs a program and waits for its end, some seconds at most. It answers in the words of the C
/// locale. Empty when it is not installed or does not end.
[[nodiscard]] std::optional<Answer> ask(QString const& program, QStringList const& arguments);

} // namespace terminal
