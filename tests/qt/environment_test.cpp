// The values of the surroundings, and what stands in for those that a desktop does not set.

#include "qt/desk_values.h"
#include "tests/qt/desk.h"

#include <QDir>
#include <QSysInfo>

#include <pwd.h>
#include <unistd.h>

namespace {

/// One variable of the process, put back as it was at the end.
class Variable {
public:
    explicit Variable(char const* name)
        : name_(name), was_set_(qEnvironmentVariableIsSet(name)), was_(qgetenv(name))
    {
        qunsetenv(name);
    }
    ~Variable() { was_set_ ? qputenv(name_, was_) : qunsetenv(name_); }
    Variable(Variable const&) = delete;
    Variable& operator=(Variable const&) = delete;

    void set(QByteArray const& value) { qputenv(name_, value); }

private:
    char const* name_;
    bool was_set_;
    QByteArray was_;
};

class Surroundings : public testing::Test {
protected:
    qt::Codec codec{1252};
    qt::DeskEnvironment environment{codec};
    Variable small{"username"};
    Variable user{"USERNAME"};
    Variable computer{"COMPUTERNAME"};
    Variable small_computer{"computername"};
    Variable profile{"USERPROFILE"};
    Variable small_profile{"userprofile"};
    Variable temp{"TEMP"};
};

TEST_F(Surroundings, AreAskedUnderTheNameAsGivenAndThenInCapitals)
{
    user.set("ALICE");
    EXPECT_EQ(environment.value("username"), "ALICE");
    EXPECT_EQ(environment.own_value("username"), "ALICE");

    small.set("alice");
    EXPECT_EQ(environment.value("username"), "alice");
    EXPECT_EQ(environment.value("USERNAME"), "ALICE");
}

TEST_F(Surroundings, AreTheDesktopsWhereTheProcessHasNone)
{
    EXPECT_EQ(environment.value("username"), getpwuid(geteuid())->pw_name);
    EXPECT_EQ(environment.value("computername"), QSysInfo::machineHostName().toStdString());
    EXPECT_EQ(environment.value("userprofile"), QDir::homePath().toStdString());
    EXPECT_EQ(environment.value("TEMP"), QDir::tempPath().toStdString());
}

TEST_F(Surroundings, AreTheDesktopsWhereTheProcessHasAnEmptyOne)
{
    temp.set("");

    EXPECT_EQ(environment.value("TEMP"), QDir::tempPath().toStdString());
}

TEST_F(Surroundings, HaveNothingOfTheirOwnWithoutTheProcess)
{
    EXPECT_EQ(environment.own_value("userprofile"), "");
    EXPECT_EQ(environment.own_value("TEMP"), "");
}

TEST_F(Surroundings, KnowNoOtherNames)
{
    EXPECT_EQ(environment.value("VEXLO_NO_SUCH_VALUE"), "");
}

TEST_F(Surroundings, AreInTheOfficesLetters)
{
    user.set("J\xC3\xB6rg\xE2\x98\x83");

    EXPECT_EQ(environment.value("username"), "J\xF6rg?");
}

} // namespace
