#include "qt/main_binder.h"

#include <utility>

namespace qt {

MainBinder::MainBinder(forms::Forms& forms, Codec const& codec, Units const& units)
    : window_(units), bindings_(codec), frame_(forms.frmMain.window, window_, codec, units,
                                               {.takes_keyboard = true, .knows_its_place = true})
{
    auto& form = forms.frmMain;
    bind_recipients(form);
    bind_message(form);
    bind_tools(form);
    bind_bars(form);
    form.window.shown.attach([this] { show(); });
    form.window.hidden.attach([this] { show(); });
    form.window.repaint.attach([this] {
        show();
        window_.repaint();
    });
}

void MainBinder::bind_recipients(forms::FrmMain& form)
{
    bindings_.bind(form.SSTab1, window_.SSTab1);
    bindings_.bind(form.allusers, window_.allusers);
    bindings_.bind(form.Checkallusers, window_.Checkallusers);
    bindings_.bind(form.List1, window_.List1, forms::group_tail);
    bindings_.bind(form.configgroups, window_.configgroups);
}

void MainBinder::bind_message(forms::FrmMain& form)
{
    bindings_.bind(form.messagetext, window_.messagetext);
    bindings_.bind(form.Frame2, window_.Frame2);
    bindings_.bind(form.Label5, window_.Label5);
    bindings_.bind(form.entlabel1, window_.entlabel1);
    bindings_.bind(form.entlabel2, window_.entlabel2);
    bindings_.bind(form.Command3, window_.Command3);
    bindings_.bind(form.sendbtn, window_.sendbtn);
    for (std::size_t number = 1; number < form.qb.size(); ++number) {
        bindings_.bind_coloured(form.qb[number], *window_.qb[number]);
    }
}

void MainBinder::bind_tools(forms::FrmMain& form)
{
    bindings_.bind(form.recall, window_.recall);
    bindings_.bind(form.dissmissall, window_.dissmissall);
    bindings_.bind(form.history, window_.history);
    bindings_.bind(form.autorespond, window_.autorespond);
    bindings_.bind(form.away, window_.away);
    bindings_.bind(form.chatbtn, window_.chatbtn);
    bindings_.bind(form.options, window_.options);
}

void MainBinder::bind_bars(forms::FrmMain& form)
{
    bindings_.bind(form.title, window_.title);
    bindings_.bind(form.helpbtn, window_.helpbtn);
    for (auto const& [model, label] :
         {std::pair{&form.Label3, &window_.Label3}, std::pair{&form.Label4, &window_.Label4}}) {
        bindings_.bind(*model, *label);
        label->clicked = [link = model] { link->clicked.run(); };
    }
    bindings_.bind(form.spotmenu, window_.spotmenu);
    bindings_.bind(form.spotmin, window_.spotmin);
    bindings_.bind(form.spotx, window_.spotx);
    bindings_.bind(form.statustext, window_.statustext);
    bindings_.bind(form.cuetotal, window_.cuetotal);
    bindings_.bind(form.traffic, window_.traffic);
}

void MainBinder::show()
{
    bindings_.show();
    frame_.show();
}

} // namespace qt
