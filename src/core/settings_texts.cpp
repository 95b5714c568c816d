#include "core/settings_texts.h"

#include "core/settings_lines.h"
#include "core/version.h"
#include "text/numbers.h"

namespace core::settings_texts {

namespace {

std::string version_line()
{
    return "Vexlo Instant Messaging v" + version_text();
}

} // namespace

std::string of_first_run(forms::FrmMain const& frmMain, std::string_view sound)
{
    settings_lines::Writer file;
    file.line(version_line());
    file.entry("MY NAME", frmMain.friendlyname);
    file.entry("LISTENINGPORT", 4111);
    file.entry("SENDINGPORT", 4112);
    file.entry("PLAYSOUND", 1);
    file.entry("REPLYTOALL", 0);
    file.entry("SHOWOWN", 0);
    file.entry("AUTORESPONSEALLOW", 0);
    file.entry("SHOWMEINLIST", 1);
    file.entry("STARTWITHWINDOWS", 1);
    file.entry("MINIMIZEONSTART", 0);
    file.entry("KEEPINFRONT", 0);
    file.entry("AUTORESPONSEMSG", "I'm away from my desk");
    file.entry("AUTORESPONSEMSG1", "I'm out of the office");
    file.entry("AUTORESPONSEMSG2", "I'm in a meeting");
    file.entry("AUTORESPONSEMSG3", "");
    file.entry("AUTORESPONSEFORWARD", 1);
    file.entry("MESSAGEFONTSIZE", 10);
    file.entry("USERLISTFONT", 0);
    file.entry("USEWATCHDOG", 1);
    file.entry("STARTCLEARUSERCACHE", 0);
    file.entry("RESETPORTS", 0);
    file.entry("ENTERSEND", 0);
    file.entry("HIDEENTERSENDTIP", 0);
    // Not the key that the reader looks for: the first load falls back on the same file, the first
    // save mends it.
    file.entry("WAVESOUND", sound);
    file.entry("WINPOSX", text::plain_decimal(frmMain.window.left));
    file.entry("WINPOSY", text::plain_decimal(frmMain.window.top));
    file.entry("AUTOCHECKUSERS", 0);
    file.line("");
    return file.text();
}

std::string of_save(forms::Forms const& forms)
{
    auto const& frmMain = forms.frmMain;
    auto const& settings = forms.settings;
    settings_lines::Writer file;
    file.line(version_line());
    file.line("Settings file");
    file.entry("MY NAME", frmMain.friendlyname);
    file.entry("LISTENINGPORT", frmMain.udplistenport);
    file.entry("SENDINGPORT", frmMain.udpsendport);
    file.entry("PLAYSOUND", frmMain.Check2.on() ? 1 : 0);
    file.entry("REPLYTOALL", settings.replytoall.value());
    file.entry("SHOWOWN", settings.myown.value());
    file.entry("AUTORESPONSEMSG", settings.ar[0].text());
    file.entry("AUTORESPONSEMSG1", settings.ar[1].text());
    file.entry("AUTORESPONSEMSG2", settings.ar[2].text());
    file.entry("AUTORESPONSEMSG3", settings.ar[3].text());
    file.entry("AUTORESPONSEFORWARD", settings.autoreply.value());
    file.entry("AUTORESPONSEALLOW", settings.autoresmaster.value());
    file.entry("SHOWMEINLIST", settings.showme.value());
    file.entry("STARTWITHWINDOWS", settings.autostartup.value());
    file.entry("MINIMIZEONSTART", settings.startminimized.value());
    file.entry("KEEPINFRONT", settings.ontop.value());
    file.entry("MESSAGEFONTSIZE", settings.msgfontsize.caption());
    file.entry("USERLISTFONT", settings.userlistfont.value());
    file.entry("STARTCLEARUSERCACHE", settings.startclearusers.value());
    file.entry("RESETPORTS", settings.resetports.value());
    file.entry("ENTERSEND", settings.entersend.value());
    file.entry("HIDEENTERSENDTIP", settings.hidetip.value());
    file.entry("WAVEFILE", settings.wavefile);
    file.entry("WINPOSX", text::plain_decimal(frmMain.window.left));
    file.entry("WINPOSY", text::plain_decimal(frmMain.window.top));
    file.entry("AUTOCHECKUSERS", settings.autocheckusers.value());
    file.line("End");
    return file.text();
}

} // namespace core::settings_texts
