#include "qt/settings_binder.h"

namespace qt {

SettingsBinder::SettingsBinder(forms::Settings& form, QWidget& owner, Codec const& codec,
                               Units const& units)
    : window_(units, &owner), frame_(form.window, window_, codec, units, {.takes_keyboard = true})
{
    frame_.close_by(form.cancelbtn);
    frame_.parts.bind(form.SSTab1, window_.SSTab1);
    bind_identity(form);
    bind_sound(form);
    bind_options(form);
    bind_rows(form, window_.send);
    bind_rows(form, window_.response);
    bind_away(form);
    bind_admin(form);
    frame_.parts.bind(form.savebtn, window_.savebtn);
    frame_.parts.bind(form.cancelbtn, window_.cancelbtn);
}

void SettingsBinder::bind_identity(forms::Settings& form)
{
    auto& parts = frame_.parts;
    auto& page = window_.general;
    parts.bind(form.friendlyname, page.friendlyname);
    parts.bind(form.Command1, page.Command1);
    parts.bind(form.portlisten, page.portlisten);
    parts.bind(form.Command2, page.Command2);
    parts.bind(form.portsend, page.portsend);
    parts.bind(form.Command3, page.Command3);
    parts.bind(form.chatport1, page.chatport1);
    parts.bind(form.btnChatPort1, page.btnChatPort1);
    parts.bind(form.chatport2, page.chatport2);
    parts.bind(form.btnChatPort2, page.btnChatPort2);
    parts.bind(form.Frame1, page.Frame1);
    parts.bind_lines(form.localinfo, page.localinfo);
}

void SettingsBinder::bind_sound(forms::Settings& form)
{
    auto& parts = frame_.parts;
    auto& page = window_.general;
    parts.bind(form.soundon, page.soundon);
    parts.bind(form.wavefile, page.wavefile);
    parts.bind(form.btnSoundFile, page.btnSoundFile);
    parts.bind(form.Command6, page.Command6);
}

void SettingsBinder::bind_options(forms::Settings& form)
{
    auto& parts = frame_.parts;
    auto& page = window_.general;
    parts.bind(form.replytoall, page.replytoall);
    parts.bind(form.myown, page.myown);
    parts.bind(form.showme, page.showme);
    parts.bind(form.autostartup, page.autostartup);
    parts.bind(form.ontop, page.ontop);
    parts.bind(form.startminimized, page.startminimized);
    parts.bind(form.userlistfont, page.userlistfont);
    parts.bind(form.watchdog, page.watchdog);
    parts.bind(form.startclearusers, page.startclearusers);
    parts.bind(form.resetports, page.resetports);
    parts.bind(form.entersend, page.entersend);
    parts.bind(form.hidetip, page.hidetip);
    parts.bind(form.msgfontsize, page.msgfontsize);
    parts.bind(form.autocheckusers, page.autocheckusers);
}

void SettingsBinder::bind_rows(forms::Settings& form, SettingsButtonsPage const& page)
{
    auto& parts = frame_.parts;
    auto number = page.first();
    for (auto const& row : page.all()) {
        parts.bind_coloured(form.qsend[number], *row.qsend);
        parts.bind_coloured(form.qsendtext[number], *row.qsendtext);
        parts.bind(form.qsendi[number], *row.qsendi);
        ++number;
    }
}

void SettingsBinder::bind_away(forms::Settings& form)
{
    auto& parts = frame_.parts;
    auto& page = window_.away;
    parts.bind(form.autoresmaster, page.autoresmaster);
    for (std::size_t index = 0; index < form.ar.size(); ++index) {
        parts.bind(form.ar[index], *page.ar[index]);
    }
    parts.bind(form.autorespond, page.autorespond);
    parts.bind(form.ar3temp, page.ar3temp);
    parts.bind(form.btnAutoForward, page.btnAutoForward);
    parts.bind(form.autoreply, page.autoreply);
}

void SettingsBinder::bind_admin(forms::Settings& form)
{
    auto& parts = frame_.parts;
    auto& page = window_.admin;
    parts.bind(form.autoclean, page.autoclean);
    parts.bind(form.Command4, page.Command4);
    parts.bind(form.btnTransfer, page.btnTransfer);
    parts.bind(form.transfername, page.transfername);
    parts.bind(form.transfertext, page.transfertext);
}

} // namespace qt
