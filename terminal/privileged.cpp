#include "terminal/privileged.h"

#include "tap/shell_word.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

namespace terminal {

namespace {

/// A word as a shell takes it.
QString quoted(QString const& word)
{
    static QRegularExpression const plain(QStringLiteral("^[A-Za-z0-9_./:=@%+-]+$"));
    return plain.match(word).hasMatch()
               ? word
               : QString::fromStdString(tap::shell_word(word.toStdString()));
}

bool has_own_eyes(QStringList const& arguments)
{
    return std::ranges::any_of(arguments, [](QString const& each) {
        return each == QLatin1String("--as") || each.startsWith(QLatin1String("--as="));
    });
}

} // namespace

QString privileged(Desk const& desk, QString const& command, QStringList const& arguments)
{
    QStringList words{QStringLiteral("sudo"), QCoreApplication::applicationFilePath(), command};
    if (command == QLatin1String("listen") && !has_own_eyes(arguments)) {
        words << QStringLiteral("--as") << desk.codec.to_unicode(desk.folder.forms.frmMain.user);
    }
    words += arguments;
    std::ranges::transform(words, words.begin(), quoted);
    return words.join(QLatin1Char(' '));
}

} // namespace terminal
