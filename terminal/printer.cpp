#include "terminal/printer.h"

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

} // namespace

void Printer::tell(QString const& words, QJsonObject const& facts) const
{
    write_line(stdout, form_ == Form::words ? words.toUtf8()
                                            : QJsonDocument(facts).toJson(QJsonDocument::Compact));
}

void Printer::complain(QString const& words)
{
    write_line(stderr, "vexlotap: " + words.toUtf8());
}

} // namespace terminal
