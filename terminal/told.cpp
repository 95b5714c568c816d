#include "terminal/told.h"

#include "tap/escape.h"
#include "tap/kind.h"
#include "terminal/readable.h"

#include "messaging/queue_row.h"

#include <QJsonArray>

#include <variant>

namespace terminal {

namespace wire = network::wire;

namespace {

QString latin(std::string_view words)
{
    return QString::fromLatin1(words.data(), static_cast<qsizetype>(words.size()));
}

QString kind_of(messaging::QueueRow const& row, std::string_view datagram)
{
    return latin(name_of(tap::kind_of(row, datagram)));
}

QString in_quotes(QString const& words)
{
    return QLatin1Char('"') + words + QLatin1Char('"');
}

QJsonObject fields_of(messaging::QueueRow const& row, qt::Codec const& codec)
{
    if (auto const* presence = std::get_if<wire::Presence>(&row)) {
        return {{QStringLiteral("identity"), codec.to_unicode(presence->identity)},
                {QStringLiteral("name"), codec.to_unicode(presence->name)}};
    }
    if (auto const* message = std::get_if<wire::Message>(&row)) {
        return {{QStringLiteral("sender"), codec.to_unicode(message->sender)},
                {QStringLiteral("recipient"), codec.to_unicode(message->recipient)},
                {QStringLiteral("body"), codec.to_unicode(message->body)}};
    }
    return {};
}

void add(QJsonObject& facts, QJsonObject const& more)
{
    for (auto fact = more.begin(); fact != more.end(); ++fact) {
        facts.insert(fact.key(), fact.value());
    }
}

QJsonObject facts_of(tap::Verdict const& verdict, qt::Codec const& codec)
{
    QJsonObject facts{{QStringLiteral("act"), latin(name_of(verdict.act))},
                      {QStringLiteral("reason"), codec.to_unicode(verdict.reason)}};
    QJsonArray sends;
    for (auto const& each : verdict.sends) {
        sends.append(codec.to_unicode(each));
    }
    facts.insert(QStringLiteral("sends"), sends);
    if (verdict.popup) {
        facts.insert(QStringLiteral("popup"),
                     QJsonObject{{QStringLiteral("from"), codec.to_unicode(verdict.popup->from)},
                                 {QStringLiteral("text"), codec.to_unicode(verdict.popup->text)},
                                 {QStringLiteral("to_all"), verdict.popup->to_all}});
    }
    if (!verdict.status.empty()) {
        facts.insert(QStringLiteral("status"), codec.to_unicode(verdict.status));
    }
    return facts;
}

} // namespace

QString words_of(tap::Datagram const& datagram, qt::Codec const& codec)
{
    constexpr int kind_width = 9;
    auto const row = messaging::read_row(datagram.bytes, codec.letters());
    auto const kind = kind_of(row, datagram.bytes).leftJustified(kind_width);
    auto const field = [&](std::string_view bytes) { return readable(codec, bytes); };
    if (auto const* presence = std::get_if<wire::Presence>(&row)) {
        return kind + field(presence->identity) + QLatin1Char(' ') +
               in_quotes(field(presence->name));
    }
    if (auto const* message = std::get_if<wire::Message>(&row)) {
        return kind + field(message->sender) + QStringLiteral(" to ") + field(message->recipient) +
               QLatin1Char(' ') + in_quotes(field(message->body));
    }
    return kind + in_quotes(field(datagram.bytes));
}

QString words_of(tap::Verdict const& verdict, qt::Codec const& codec)
{
    return latin(name_of(verdict.act)) + QStringLiteral(": ") + readable(codec, verdict.reason);
}

QJsonObject facts_of(tap::Datagram const& datagram, tap::Verdict const& verdict,
                     qt::Codec const& codec)
{
    constexpr double second = 1e6;
    auto const row = messaging::read_row(datagram.bytes, codec.letters());
    QJsonObject facts{
        {QStringLiteral("at"), static_cast<double>(datagram.when.count()) / second},
        {QStringLiteral("from"), latin(datagram.from)},
        {QStringLiteral("from_port"), datagram.from_port},
        {QStringLiteral("to_port"), datagram.to_port},
        {QStringLiteral("kind"), kind_of(row, datagram.bytes)},
        {QStringLiteral("bytes"), latin(tap::escaped(datagram.bytes))},
    };
    add(facts, fields_of(row, codec));
    add(facts, facts_of(verdict, codec));
    return facts;
}

} // namespace terminal
