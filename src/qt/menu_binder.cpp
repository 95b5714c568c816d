#include "qt/menu_binder.h"

#include <QCursor>
#include <QMenu>

namespace qt {

MenuBinder::MenuBinder(controls::Menu& menu, QString const& name, Codec const& codec,
                       QWidget& owner)
    : menu_(menu), codec_(codec), widget_(new QMenu(codec.to_unicode(menu.caption), &owner))
{
    widget_->setObjectName(name);
    widget_->setAccessibleName(codec.to_unicode(menu.caption));
    for (std::size_t index = 0; index < menu.entries.size(); ++index) {
        QAction* const action = widget_->addAction(QString());
        action->setSeparator(menu.entries[index].caption == "-");
        QObject::connect(action, &QAction::triggered, widget_,
                         [this, index] { menu_.choose(index); });
        actions_.append(action);
    }
    menu.popped_up = [this] {
        show();
        if (!widget_->isVisible()) { // A tray icon pops its menu up itself.
            widget_->popup(QCursor::pos());
        }
    };
    show();
}

void MenuBinder::show()
{
    for (std::size_t index = 0; index < menu_.entries.size(); ++index) {
        controls::MenuEntry const& entry = menu_.entries[index];
        QAction& action = *actions_[static_cast<qsizetype>(index)];
        if (!action.isSeparator()) {
            // In a caption a "&" is a letter like any other.
            action.setText(codec_.to_unicode(entry.caption).replace(u'&', QStringLiteral("&&")));
            action.setCheckable(entry.checked);
            action.setChecked(entry.checked);
        }
        action.setVisible(entry.visible);
        action.setEnabled(entry.enabled);
    }
}

} // namespace qt
