#include "qt/application.h"
#include "tests/qt/report.h"

#include <QMessageBox>
#include <QProcess>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace desk {

int fail(int argc, char** argv)
{
    qt::Application application(argc, argv);
    qt::Codec const codec(1252);
    application.codec = &codec;
    application.stand_still = [] { std::puts("still"); };
    QTimer::singleShot(0, &application,
                       [] { throw text::Failure("No <b>B\xfcro</b> here", 75, "test"); });
    QTimer::singleShot(100, &application, [] { throw text::Failure("Nothing left", 61, "test"); });
    QTimer::singleShot(200, &application, [] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        std::puts(box->text().toUtf8().constData());
        std::puts(box->textFormat() == Qt::PlainText ? "plain" : "markup");
        std::fflush(stdout); // The end comes without it.
        box->accept();
    });
    return QApplication::exec();
}

} // namespace desk

namespace {

using testing::HasSubstr;
using testing::Not;

class Report : public testing::Test {
protected:
    void SetUp() override
    {
        program.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(desk::fails)});
        ASSERT_TRUE(program.waitForFinished(20000));
        told = program.readAllStandardError().toStdString();
    }

    QProcess program;
    std::string told;
};

TEST_F(Report, OfAFailureIsOneBoxAndALineInTheOfficesLetters)
{
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_EQ(program.readAllStandardOutput().toStdString(),
              "still\nNo <b>B\u00fcro</b> here\nplain\n");
    EXPECT_THAT(told, HasSubstr("Vexlo Instant Messaging: No <b>B\u00fcro</b> here\n"));
}

TEST_F(Report, IsTheOnlyOneThoughMoreFailsBehindItsBox)
{
    EXPECT_THAT(told, Not(HasSubstr("Nothing left")));
}

} // namespace
