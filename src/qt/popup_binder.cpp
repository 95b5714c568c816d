#include "qt/popup_binder.h"

namespace qt {

PopupBinder::PopupBinder(forms::Popup& popup, QString const& name, Codec const& codec,
                         Units const& units)
    : popup_(popup), window_(name, units), bindings_(codec),
      frame_(popup.window, window_, codec, units, {})
{
    bind();
    frame_.close_asked = [this] { popup_.Command1.click(); };
    window_.Label1.clicked = [this] { popup_.colourmessage.run(); };
    popup.window.shown.attach([this] { show(); });
    popup.window.hidden.attach([this] { show(); });
    popup.window.repaint.attach([this] {
        show();
        window_.repaint();
    });
}

void PopupBinder::bind()
{
    bindings_.bind(popup_.Label2, window_.Label2);
    bindings_.bind(popup_.messagefrom, window_.messagefrom);
    bindings_.bind(popup_.message, window_.message);
    bindings_.bind(popup_.Check1, window_.Check1);
    bindings_.bind(popup_.Label1, window_.Label1);
    bindings_.bind(popup_.temp, window_.temp);
    bindings_.bind(popup_.Command2, window_.Command2);
    bindings_.bind(popup_.fwd, window_.fwd);
    for (std::size_t index = 0; index < popup_.qb.size(); ++index) {
        bindings_.bind_coloured(popup_.qb[index], *window_.qb[index]);
    }
    bindings_.bind(popup_.printbtn, window_.printbtn);
    bindings_.bind(popup_.Label3, window_.Label3);
    bindings_.bind(popup_.Command1, window_.Command1);
    bindings_.bind(popup_.beensent, window_.beensent);
}

void PopupBinder::show()
{
    if (popup_.window.visible() || window_.isVisible()) {
        bindings_.show();
        window_.make_room_for_note(!popup_.Label3.caption().empty());
        frame_.show();
    }
}

} // namespace qt
