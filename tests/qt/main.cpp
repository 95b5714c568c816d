#include "tests/qt/report.h"

#include <QApplication>
#include <gtest/gtest.h>

#include <string_view>

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    if (argc > 1 && argv[1] == std::string_view(desk::fails)) {
        return desk::fail(argc, argv);
    }
    testing::InitGoogleTest(&argc, argv);
    QApplication const application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
