#include "qt/exec_line.h"

namespace qt {

namespace {

// Three rules lie over each other: inside quotes some characters want a back-slash, a percent
// begins a field code, and the value as a whole is a text of a key file, with back-slashes of its
// own.

QString quoted(QString path)
{
    for (QChar const special : {u'\\', u'"', u'`', u'$'}) {
        path.replace(special, QStringLiteral("\\") + special);
    }
    return path;
}

QString unquoted(QString const& line)
{
    QString command;
    bool inside = false;
    for (qsizetype place = 0; place < line.size(); ++place) {
        if (inside && line[place] == u'\\' && place + 1 < line.size()) {
            ++place;
        } else if (line[place] == u'"') {
            inside = !inside;
        }
        command += line[place];
    }
    return command;
}

QString as_key_value(QString text)
{
    return text.replace(u'\\', QStringLiteral("\\\\"))
        .replace(u'\n', QStringLiteral("\\n"))
        .replace(u'\t', QStringLiteral("\\t"))
        .replace(u'\r', QStringLiteral("\\r"));
}

QChar meant_by(QChar escaped)
{
    switch (escaped.unicode()) {
    case u's':
        return u' ';
    case u'n':
        return u'\n';
    case u't':
        return u'\t';
    case u'r':
        return u'\r';
    default:
        return escaped;
    }
}

QString from_key_value(QString const& value)
{
    QString text;
    for (qsizetype place = 0; place < value.size(); ++place) {
        if (value[place] == u'\\' && place + 1 < value.size()) {
            text += meant_by(value[++place]);
        } else {
            text += value[place];
        }
    }
    return text;
}

} // namespace

QString exec_line(QString const& command)
{
    QString line = command;
    auto const last = command.lastIndexOf(u'"');
    if (command.startsWith(u'"') && last > 0) {
        line = u'"' + quoted(command.mid(1, last - 1)) + command.mid(last);
    }
    return as_key_value(line.replace(u'%', QStringLiteral("%%")));
}

QString command_of(QString const& exec_line)
{
    return unquoted(from_key_value(exec_line)).replace(QStringLiteral("%%"), QStringLiteral("%"));
}

} // namespace qt
