#pragma once

#include <QJsonObject>
#include <QString>

namespace terminal {

/// Writes what a command has to say to standard output, a line each: words for people, or, on
/// request, one JSON object a line for programs. A line is on its way when the call returns.
class Printer {
public:
    enum class Form { words, json };

    explicit Printer(Form form) : form_(form) {}

    /// The same fact in both forms.
    void tell(QString const& words, QJsonObject const& facts) const;

    /// A complaint or a hint, on standard error, in words always.
    static void complain(QString const& words);

private:
    Form form_;
};

} // namespace terminal
