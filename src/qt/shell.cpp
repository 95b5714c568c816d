#include "qt/shell.h"

#include "qt/window_face.h"

#include <QAction>
#include <QGuiApplication>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace qt {

Shell::Shell(forms::Forms& forms, Codec const& codec, Units const& units)
    : forms_(forms), codec_(codec), units_(units), main_(forms, codec, units),
      splash_(forms.loading, codec, units), history_(forms.historyfrm, codec, units),
      log_(forms.log, main_.window(), codec, units),
      settings_(forms.settings, main_.window(), codec, units),
      groups_(forms.groups, main_.window(), codec, units),
      forward_(forms.fwdtofrm, settings_.window(), codec, units),
      toolsmenu_(forms.menuform.toolsmenu, QStringLiteral("toolsmenu"), codec, main_.window()),
      closepopups_(forms.menuform.closepopups, QStringLiteral("closepopups"), codec,
                   main_.window()),
      autores_(forms.menuform.autores, QStringLiteral("autores"), codec, main_.window())
{
    tell_windows_apart();
    for (std::size_t slot = 0; slot < forms.popup.size(); ++slot) {
        add_popup(forms.popup[slot], QStringLiteral("popup%1").arg(slot));
    }
    add_popup(forms.popuplast, QStringLiteral("popuplast"));
    add_hidden_commands();
    follow_pointer();
}

void Shell::add_popup(forms::Popup& popup, QString const& name)
{
    popups_.push_back(std::make_unique<PopupBinder>(popup, name, codec_, units_));
    add_commands(popups_.back()->window(), {{"colourmessage", &popup.colourmessage},
                                            {"ontop", &popup.ontop},
                                            {"ontopoff", &popup.ontopoff}});
}

QWidget& Shell::popup_window(QString const& name)
{
    auto const found = std::ranges::find_if(
        popups_, [&](auto const& popup) { return popup->window().objectName() == name; });
    Q_ASSERT(found != popups_.end());
    return (*found)->window();
}

void Shell::add_hidden_commands()
{
    auto& frmMain = forms_.frmMain;
    add_commands(main_.window(), {{"getusers", &frmMain.getusers},
                                  {"saveusers", &frmMain.saveusers},
                                  {"loadusers", &frmMain.loadusers},
                                  {"saveallsettings", &frmMain.saveallsettings},
                                  {"cleanlog", &frmMain.cleanlog},
                                  {"changeports1", &frmMain.changeports1},
                                  {"changeports2", &frmMain.changeports2},
                                  {"Command1", &frmMain.Command1},
                                  {"Command4", &frmMain.Command4},
                                  {"Command5", &frmMain.Command5},
                                  {"Command6", &frmMain.Command6},
                                  {"makename", &frmMain.makename},
                                  {"playsound", &frmMain.playsound},
                                  {"soundtest", &frmMain.soundtest}});
    auto& history = forms_.historyfrm;
    add_commands(history_.window(), {{"loadbtn", &history.loadbtn},
                                     {"savebtn", &history.savebtn},
                                     {"historyrefresh", &history.historyrefresh},
                                     {"showrow", &history.showrow},
                                     {"anchorwindow", &history.anchorwindow}});
    auto& settings = forms_.settings;
    add_commands(settings_.window(), {{"loadbuttons", &settings.loadbuttons},
                                      {"SAVEBUTTONS", &settings.SAVEBUTTONS},
                                      {"getstats", &settings.getstats},
                                      {"Command7", &settings.Command7}});
    add_commands(groups_.window(), {{"loadgroups", &forms_.groups.loadgroups}});
}

void Shell::add_commands(QWidget& window, std::initializer_list<Command> commands)
{
    // Routines without a control of their own are reached by name all the same: a test, or a
    // desktop's scripts.
    for (auto const& [name, command] : commands) {
        auto* const action = new QAction(&window);
        action->setObjectName(QLatin1String(name));
        connect(action, &QAction::triggered, this, [command = command] { command->run(); });
        window.addAction(action);
    }
}

void Shell::follow_pointer()
{
    forms_.frmMain.window.busy.attach([] { QGuiApplication::setOverrideCursor(Qt::WaitCursor); });
    forms_.frmMain.window.idle.attach([] { QGuiApplication::restoreOverrideCursor(); });
}

void Shell::use_tray(DeskTray& tray)
{
    tray_.emplace(tray, main_.frame(), closepopups_.widget());
}

void Shell::show()
{
    // Showing a window may run the event loop's hooks again.
    if (frozen_ || std::exchange(showing_, true)) {
        return;
    }
    if (tray_) {
        tray_->look();
    }
    main_.show();
    splash_.show();
    history_.show();
    log_.show();
    settings_.show();
    groups_.show();
    forward_.show();
    toolsmenu_.show();
    closepopups_.show();
    autores_.show();
    for (auto const& popup : popups_) {
        popup->show();
    }
    showing_ = false;
}

} // namespace qt
