// The least that a program with a window can be: one empty window.

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv)
{
    QApplication const application(argc, argv);
    QWidget window;
    window.setObjectName(QStringLiteral("frmMain"));
    window.resize(547, 358);
    window.show();
    return QApplication::exec();
}
