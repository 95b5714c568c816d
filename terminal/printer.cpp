#include "terminal/printer.h"

#include "terminal/readable.h"

#include <QJsonDocument>

#include <cstdio>

namespace terminal {

namespace {

void write_line(std::FILE* file, QByteArray const& line)
{
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), file);
    std::fputc('\n', file);
    std::fflush(file);
}

/// What a stranger has sent must not steer the terminal: what could is an escape, which means the
/// same to a reader of JSON.
QByteArray shown(QString const& words)
{
    constexpr int digits = 4;
    constexpr int base = 16;
    QString safe;
    for (QChar const letter : words) {
        safe += letter == QLatin1Char('\n') || letter == QLatin1Char('\t') || is_harmless(letter)
                    ? QString(letter)
                    : QStringLiteral("\\u%1").arg(letter.unicode(), digits, base, QLatin1Char('0'));
    }
    return safe.toUtf8();
}

QString line_of(QJsonObject const& facts)
{
    return QString::fromUtf8(QJsonDocument(facts).toJson(QJsonDocument::Compact));
}

} // namespace

void Printer::tell(QString const& words, QJsonObject const& facts) const
{
    write_line(stdout, shown(form_ == Form::words ? words : line_of(facts)));
}

void Printer::complain(QString const& words)
{
    write_line(stderr, "vexlotap: " + shown(words));
}

} // namespace terminal
