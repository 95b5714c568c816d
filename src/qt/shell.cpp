#include "qt/shell.h"

#include <QAbstractEventDispatcher>
#include <QAction>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace qt {

Shell::Shell(forms::Forms& forms, Codec const& codec, Units const& units)
    : forms_(forms), codec_(codec), units_(units), main_(forms, codec, units),
      splash_(forms.loading, codec, units),
      toolsmenu_(forms.menuform.toolsmenu, QStringLiteral("toolsmenu"), codec, main_.window()),
      closepopups_(forms.menuform.closepopups, QStringLiteral("closepopups"), codec,
                   main_.window()),
      autores_(forms.menuform.autores, QStringLiteral("autores"), codec, main_.window())
{
    for (std::size_t slot = 0; slot < forms.popup.size(); ++slot) {
        add_popup(forms.popup[slot], QStringLiteral("popup%1").arg(slot));
    }
    add_popup(forms.popuplast, QStringLiteral("popuplast"));
    add_hidden_commands();
    follow_event_loop();
}

void Shell::add_popup(forms::Popup& popup, QString const& name)
{
    popups_.push_back(std::make_unique<PopupBinder>(popup, forms_, name, codec_, units_));
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
    // Routines without a control of their own are reached by name all the same: a test, or a
    // desktop's scripts.
    auto& frmMain = forms_.frmMain;
    std::pair<char const*, controls::Command*> const commands[]{
        {"getusers", &frmMain.getusers},         {"saveusers", &frmMain.saveusers},
        {"loadusers", &frmMain.loadusers},       {"saveallsettings", &frmMain.saveallsettings},
        {"cleanlog", &frmMain.cleanlog},         {"changeports1", &frmMain.changeports1},
        {"changeports2", &frmMain.changeports2}, {"Command1", &frmMain.Command1},
        {"Command4", &frmMain.Command4},         {"Command5", &frmMain.Command5},
        {"Command6", &frmMain.Command6},         {"makename", &frmMain.makename},
        {"playsound", &frmMain.playsound},       {"soundtest", &frmMain.soundtest},
    };
    for (auto const& [name, command] : commands) {
        auto* const action = new QAction(&main_.window());
        action->setObjectName(QLatin1String(name));
        connect(action, &QAction::triggered, this, [command = command] { command->run(); });
        main_.window().addAction(action);
    }
}

void Shell::follow_event_loop()
{
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            [this] { show(); });
}

void Shell::show()
{
    // Showing a window may run the event loop's hooks again.
    if (frozen_ || std::exchange(showing_, true)) {
        return;
    }
    main_.show();
    splash_.show();
    toolsmenu_.show();
    closepopups_.show();
    autores_.show();
    for (auto const& popup : popups_) {
        popup->show();
    }
    showing_ = false;
}

} // namespace qt
