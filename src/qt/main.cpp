#include "core/program.h"
#include "qt/application.h"
#include "qt/clockwork.h"
#include "qt/codec.h"
#include "qt/desk_boxes.h"
#include "qt/desk_files.h"
#include "qt/desk_outside.h"
#include "qt/desk_process.h"
#include "qt/desk_screen.h"
#include "qt/desk_session.h"
#include "qt/desk_socket.h"
#include "qt/desk_sound.h"
#include "qt/desk_tray.h"
#include "qt/desk_values.h"
#include "qt/desk_web.h"
#include "qt/shell.h"
#include "qt/units.h"

#include <QIcon>
#include <QLocale>
#include <QScreen>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int no_display = 2;

[[noreturn]] void end_without_display()
{
    std::fputs("Vexlo Instant Messaging needs a display: start it on a desktop (X11 or Wayland).\n",
               stderr);
    std::fflush(nullptr);
    std::_Exit(no_display);
}

bool display_is_named()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

/// A display that is named and does not answer ends the toolkit with a fatal message; this is the
/// only one it has then.
void end_on_fatal_message(QtMsgType type, QMessageLogContext const&, QString const& message)
{
    if (type == QtFatalMsg) {
        end_without_display();
    }
    std::fprintf(stderr, "%s\n", qPrintable(message));
}

/// One running program on this desktop, put together.
class Desktop {
public:
    explicit Desktop(qt::Application& application)
        : codec_(qt::code_page_of(QLocale::system())), letters_(codec_.letters()),
          units_(application.primaryScreen()->logicalDotsPerInch()), boxes_(codec_),
          environment_(codec_), files_(codec_, QCoreApplication::applicationDirPath()),
          outside_(codec_, files_),
          process_(codec_, application.arguments().mid(1).join(QLatin1Char(' ')),
                   QCoreApplication::applicationDirPath()),
          processes_(codec_), screen_(units_), session_entries_(codec_, files_), sound_(files_),
          tray_(codec_), web_(codec_, files_), program_(
                                                   {
                                                       .boxes = boxes_,
                                                       .clock = clock_,
                                                       .environment = environment_,
                                                       .files = files_,
                                                       .outside = outside_,
                                                       .process = process_,
                                                       .processes = processes_,
                                                       .screen = screen_,
                                                       .session_entries = session_entries_,
                                                       .sound = sound_,
                                                       .tray_icon = tray_,
                                                       .web = web_,
                                                       .listening = listening_,
                                                       .sending = sending_,
                                                   },
                                                   letters_),
          shell_(program_.forms, codec_, units_),
          clockwork_(program_.forms.frmMain, shell_.main_window())
    {
        boxes_.owner = &shell_.main_window();
        application.codec = &codec_;
        shell_.use_tray(tray_);
        application.stand_still = [this] {
            clockwork_.stop();
            listening_.fall_silent();
            shell_.freeze();
        };
    }

    void start() { program_.start(); }

private:
    qt::Codec codec_;
    text::CharacterSet letters_;
    qt::Units units_;
    qt::DeskBoxes boxes_;
    qt::DeskClock clock_;
    qt::DeskEnvironment environment_;
    qt::DeskFiles files_;
    qt::DeskOutside outside_;
    qt::DeskProcess process_;
    qt::DeskProcesses processes_;
    qt::DeskScreen screen_;
    qt::DeskSessionEntries session_entries_;
    qt::DeskSound sound_;
    qt::DeskTray tray_;
    qt::DeskWeb web_;
    qt::DeskSocket listening_{qt::DeskSocket::Role::listening};
    qt::DeskSocket sending_{qt::DeskSocket::Role::sending};
    core::Program program_;
    qt::Shell shell_;
    qt::Clockwork clockwork_;
};

} // namespace

int main(int argc, char** argv)
{
    if (!display_is_named()) {
        end_without_display();
    }
    qInstallMessageHandler(end_on_fatal_message);
    qt::Application application(argc, argv);
    qInstallMessageHandler(nullptr);

    Desktop desktop(application);
    // Start-up is the loop's first event, so that its failures and its boxes are like all others'.
    QTimer::singleShot(0, &application, [&desktop] { desktop.start(); });
    return QApplication::exec();
}
