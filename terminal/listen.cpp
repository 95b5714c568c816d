#include "terminal/listen.h"

#include "terminal/desk.h"
#include "terminal/exit_status.h"
#include "terminal/eyes.h"
#include "terminal/hearing.h"
#include "terminal/readable.h"
#include "terminal/told.h"

#include <QDateTime>

#include <map>

namespace terminal {

namespace {

constexpr int address_width = 15;

/// How often what was done.
using Tally = std::map<QString, int>;

QString words_of(Tally const& tally)
{
    QStringList parts;
    for (auto const& [act, count] : tally) {
        parts += QStringLiteral("%1 %2").arg(act).arg(count);
    }
    return parts.isEmpty() ? QString() : QStringLiteral(": ") + parts.join(QStringLiteral(", "));
}

void tell(Printer const& printer, tap::Datagram const& datagram, tap::Verdict const& verdict,
          qt::Codec const& codec)
{
    auto const now = QDateTime::currentDateTime();
    auto const words = now.toString(QStringLiteral("HH:mm:ss.zzz ")) +
                       QString::fromStdString(datagram.from).leftJustified(address_width) +
                       QLatin1Char(' ') + terminal::words_of(datagram, codec) +
                       QStringLiteral(" -> ") + terminal::words_of(verdict, codec);
    auto facts = facts_of(datagram, verdict, codec);
    facts.insert(QStringLiteral("time"), now.toString(Qt::ISODateWithMs));
    printer.tell(words, facts);
}

} // namespace

int listen(QStringList const& arguments)
{
    Options options(
        QStringLiteral("listen"),
        QStringLiteral("Tells every datagram on the segment, and what a program does with it."));
    add_bounds(options);
    add_eyes(options);
    options.take(arguments);
    Desk const desk(options);
    auto const bounds = bounds_of(options);
    auto const view = eyes_of(options, desk);
    if (!view) {
        return nobody;
    }
    auto const ear = ear_for(desk, QStringLiteral("listen"), arguments);
    if (!ear) {
        return in_use;
    }
    Printer::complain(
        QStringLiteral("seen with the eyes of %1, %2")
            .arg(desk.codec.to_unicode(view->user), desk.codec.to_unicode(view->friendlyname)));
    tap::Onlooker onlooker(*view, desk.letters);
    Tally tally;
    auto const printer = options.printer();
    auto const heard = hear(*ear, bounds, [&](tap::Datagram const& datagram) {
        auto const verdict = onlooker.take(datagram.bytes);
        ++tally[QString::fromLatin1(name_of(verdict.act))];
        tell(printer, datagram, verdict, desk.codec);
    });
    Printer::complain(QStringLiteral("heard ") + datagrams(heard.count) + words_of(tally));
    return status_of(heard);
}

} // namespace terminal
