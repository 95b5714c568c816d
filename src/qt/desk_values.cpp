#include "qt/desk_values.h"

#include <QDateTime>
#include <QDir>
#include <QSysInfo>

#include <pwd.h>
#include <unistd.h>

namespace qt {

namespace {

QString login_name()
{
    auto const* const account = getpwuid(geteuid());
    return account != nullptr ? QString::fromLocal8Bit(account->pw_name) : QString();
}

QString desktop_value(QByteArray const& upper_name)
{
    if (upper_name == "COMPUTERNAME") {
        return QSysInfo::machineHostName();
    }
    if (upper_name == "USERNAME") {
        return login_name();
    }
    if (upper_name == "USERPROFILE") {
        return QDir::homePath();
    }
    if (upper_name == "TEMP") {
        return QDir::tempPath();
    }
    return {};
}

} // namespace

text::LocalTime DeskClock::now() const
{
    auto const moment = QDateTime::currentDateTime();
    return {.year = moment.date().year(),
            .month = moment.date().month(),
            .day = moment.date().day(),
            .hour = moment.time().hour(),
            .minute = moment.time().minute(),
            .second = moment.time().second()};
}

std::string DeskEnvironment::own_value(std::string_view name) const
{
    QByteArray const given(name.data(), static_cast<qsizetype>(name.size()));
    for (QByteArray const& asked : {given, given.toUpper()}) {
        if (qEnvironmentVariableIsSet(asked.constData())) {
            return codec_.from_unicode(qEnvironmentVariable(asked.constData()));
        }
    }
    return {};
}

std::string DeskEnvironment::value(std::string_view name) const
{
    auto const own = own_value(name);
    if (!own.empty()) {
        return own;
    }
    QByteArray const given(name.data(), static_cast<qsizetype>(name.size()));
    return codec_.from_unicode(desktop_value(given.toUpper()));
}

} // namespace qt
