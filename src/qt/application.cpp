#include "qt/application.h"

#include <QMessageBox>

#include <cstdio>
#include <cstdlib>

namespace qt {

Application::Application(int& argc, char** argv) : QApplication(argc, argv)
{
    // No display name: the toolkit would add it to the windows' titles, which are told to the
    // letter.
    setDesktopFileName(QStringLiteral("vexloim"));
    setQuitOnLastWindowClosed(false); // The program lives on without a window.
}

bool Application::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (text::Failure const& failure) {
        if (reporting_) {
            return false; // One report is enough; its box is what still runs.
        }
        report(failure);
    }
}

void Application::report(text::Failure const& failure)
{
    reporting_ = true;
    if (stand_still) {
        stand_still();
    }
    QString const text = codec != nullptr ? codec->to_unicode(failure.text)
                                          : QString::fromLatin1(failure.text.c_str());
    std::fprintf(stderr, "Vexlo Instant Messaging: %s\n", text.toLocal8Bit().constData());
    std::fflush(nullptr);
    QMessageBox box;
    box.setTextFormat(Qt::PlainText);
    box.setIcon(QMessageBox::Critical);
    box.setWindowTitle(QStringLiteral("Vexlo Instant Messaging"));
    box.setText(text);
    box.exec();
    std::_Exit(1);
}

} // namespace qt
