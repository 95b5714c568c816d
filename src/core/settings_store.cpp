#include "core/settings_store.h"

#include "core/settings_lines.h"
#include "core/version.h"
#include "text/fields.h"
#include "text/numbers.h"

#include <algorithm>
#include <array>
#include <functional>

namespace core {

using settings_lines::Writer;

namespace {

/// The splash bar's reading once start-up is over.
constexpr int start_up_is_over = 15;
constexpr std::size_t forward_entry = 3;
constexpr std::size_t off_entry = 4;
constexpr std::size_t toggle_entry = 2;
constexpr int small_font = 7;

std::string version_line()
{
    return "Vexlo Instant Messaging v" + version_text();
}

} // namespace

SettingsStore::SettingsStore(forms::Forms& forms, platform::Files& files, Paths const& paths)
    : forms_(forms), files_(files), paths_(paths)
{
    forms_.settings.soundon.clicked.attach(
        [this] { forms_.frmMain.Check2.set(forms_.settings.soundon.value()); });
}

void SettingsStore::write_default()
{
    auto const& frmMain = forms_.frmMain;
    Writer file;
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
    file.entry("WAVESOUND", paths_.sound);
    file.entry("WINPOSX", text::plain_decimal(frmMain.window.left));
    file.entry("WINPOSY", text::plain_decimal(frmMain.window.top));
    file.entry("AUTOCHECKUSERS", 0);
    file.line("");
    files_.write(paths_.settings, file.text());
}

void SettingsStore::load()
{
    forms_.settings.watchdog.set(0);
    if (files_.exists(paths_.settings)) {
        auto const content = files_.read(paths_.settings);
        // Read by fields, not by lines: a comma cuts a value, and what follows it is a field of its
        // own.
        for (text::FieldReader fields(content); !fields.at_end();) {
            read_field(fields.next());
        }
    }
    apply_sound_path();
    apply_enter_key();
    forms_.frmMain.followsessionstart.run();
    apply_stacking();
}

void SettingsStore::read_field(std::string_view field)
{
    using Take = std::function<void(SettingsStore&, std::string_view)>;
    struct Key {
        std::string line;
        Take take;
    };
    auto const key = [](std::string_view name, Take take) {
        return Key{settings_lines::key_line(name), std::move(take)};
    };
    auto const flag = [&key](std::string_view name, controls::CheckBox forms::Settings::*box) {
        return key(name, [box](SettingsStore& store, std::string_view value) {
            (store.forms_.settings.*box).set(text::flag_value(value));
        });
    };
    using S = forms::Settings;
    static std::array const keys{
        flag("STARTWITHWINDOWS", &S::autostartup),
        flag("MINIMIZEONSTART", &S::startminimized),
        flag("KEEPINFRONT", &S::ontop),
        key("MY NAME",
            [](SettingsStore& store, std::string_view value) {
                auto& frmMain = store.forms_.frmMain;
                frmMain.friendlyname = frmMain.letters.upper(value);
                store.forms_.settings.friendlyname.set_caption(frmMain.friendlyname);
            }),
        key("LISTENINGPORT",
            [](SettingsStore& store, std::string_view value) {
                auto& frmMain = store.forms_.frmMain;
                frmMain.udplistenport = frmMain.udpsendremote = text::leading_whole_number(value);
            }),
        key("SENDINGPORT",
            [](SettingsStore& store, std::string_view value) {
                auto& frmMain = store.forms_.frmMain;
                frmMain.udpsendport = frmMain.udplistenremote = text::leading_whole_number(value);
            }),
        flag("STARTCLEARUSERCACHE", &S::startclearusers),
        flag("AUTORESPONSEFORWARD", &S::autoreply),
        flag("RESETPORTS", &S::resetports),
        key("PLAYSOUND",
            [](SettingsStore& store, std::string_view value) {
                store.forms_.settings.soundon.set(text::flag_value(value));
                store.forms_.frmMain.Check2.set(store.forms_.settings.soundon.value());
            }),
        flag("REPLYTOALL", &S::replytoall),
        flag("SHOWOWN", &S::myown),
        key("AUTORESPONSEMSG",
            [](SettingsStore& store, std::string_view value) { store.read_response(0, value); }),
        key("AUTORESPONSEMSG1",
            [](SettingsStore& store, std::string_view value) { store.read_response(1, value); }),
        key("AUTORESPONSEMSG2",
            [](SettingsStore& store, std::string_view value) { store.read_response(2, value); }),
        key("AUTORESPONSEMSG3",
            [](SettingsStore& store, std::string_view value) { store.read_forward(value); }),
        key("AUTORESPONSEALLOW",
            [](SettingsStore& store, std::string_view value) {
                store.forms_.settings.autoresmaster.set(text::flag_value(value));
                store.apply_auto_respond();
                store.check_off_entry();
            }),
        flag("SHOWMEINLIST", &S::showme),
        key("MESSAGEFONTSIZE",
            [](SettingsStore& store, std::string_view value) { store.read_font_size(value); }),
        key("USERLISTFONT",
            [](SettingsStore& store, std::string_view value) {
                store.forms_.settings.userlistfont.set(text::flag_value(value));
                store.apply_list_font();
            }),
        key("USEWATCHDOG", [](SettingsStore&, std::string_view) {}),
        key("WINPOSX",
            [](SettingsStore& store, std::string_view value) {
                store.read_place(store.forms_.frmMain.window.left, value);
            }),
        key("WINPOSY",
            [](SettingsStore& store, std::string_view value) {
                store.read_place(store.forms_.frmMain.window.top, value);
            }),
        flag("ENTERSEND", &S::entersend),
        flag("HIDEENTERSENDTIP", &S::hidetip),
        key("WAVEFILE", [](SettingsStore& store,
                           std::string_view value) { store.forms_.settings.wavefile = value; }),
        key("AUTOCHECKUSERS",
            [](SettingsStore& store, std::string_view value) {
                store.forms_.settings.autocheckusers.set(text::flag_value(value));
                store.forms_.frmMain.autocheckusers.set(
                    store.forms_.settings.autocheckusers.value());
            }),
    };
    auto const found = std::ranges::find_if(
        keys, [field](Key const& known) { return field.starts_with(known.line); });
    if (found != keys.end()) {
        found->take(*this, field.substr(settings_lines::value_place));
    }
}

void SettingsStore::read_response(std::size_t index, std::string_view text)
{
    forms_.settings.ar.at(index).set_text(text);
    if (index == 0) {
        forms_.settings.autorespond.set_text(text);
    }
    auto& entry = forms_.menuform.autores[index];
    entry.visible = !text.empty();
    if (entry.visible) {
        entry.caption = text;
    }
}

void SettingsStore::read_forward(std::string_view text)
{
    constexpr std::string_view opening = "Forward to: ";
    if (!text.starts_with("Forw")) {
        text = {};
    }
    forms_.settings.ar[forward_entry].set_text(text);
    // Cut by length: a text that merely begins with "Forw" is kept, and cut the same way.
    forms_.settings.ar3temp.set_caption(text.substr(std::min(opening.size(), text.size())));
    auto& entry = forms_.menuform.autores[forward_entry];
    entry.visible = !text.empty();
    if (entry.visible) {
        entry.caption = text;
    }
}

void SettingsStore::apply_auto_respond()
{
    bool const allowed = forms_.settings.autoresmaster.on();
    forms_.frmMain.away.visible = allowed;
    forms_.frmMain.autorespond.visible = allowed;
    auto& toggle = forms_.menuform.closepopups[toggle_entry];
    toggle.visible = allowed;
    toggle.enabled = allowed;
}

void SettingsStore::check_off_entry()
{
    forms_.menuform.autores.check_only(off_entry);
    // Every load leaves auto-respond off.
    forms_.frmMain.away.set(0);
    forms_.frmMain.away.clicked.run();
}

void SettingsStore::read_font_size(std::string_view text)
{
    forms_.settings.msgfontsize.set_caption(text);
    int const size = text::leading_whole_number(text);
    if (size <= 0) {
        return;
    }
    forms_.frmMain.messagetext.font_size = size;
    forms_.for_each_popup([size](forms::Popup& popup) { popup.message.font_size = size; });
    forms_.historyfrm.message.font_size = size;
    forms_.frmMain.allusers.font_size = size;
    forms_.frmMain.List1.font_size = size;
}

void SettingsStore::apply_list_font()
{
    forms_.frmMain.allusers.font_size =
        forms_.settings.userlistfont.on() ? forms_.frmMain.messagetext.font_size : small_font;
}

void SettingsStore::read_place(float& side, std::string_view text)
{
    if (forms_.loading.ProgressBar1.value() != start_up_is_over) {
        side = std::max(0.0F, static_cast<float>(text::leading_number(text)));
    }
}

void SettingsStore::apply_sound_path()
{
    auto& chosen = forms_.settings.wavefile;
    if (chosen.empty() || !files_.exists(chosen)) {
        chosen = paths_.sound;
    }
    forms_.frmMain.wavefile = chosen;
}

void SettingsStore::apply_enter_key()
{
    auto& frmMain = forms_.frmMain;
    bool const show = !forms_.settings.hidetip.on();
    frmMain.entlabel1.visible = show;
    frmMain.entlabel2.visible = show;
    frmMain.entersend.set(forms_.settings.entersend.value());
    bool const enter_sends = frmMain.entersend.on();
    frmMain.entlabel1.set_caption(enter_sends ? "Press Enter to Send" : "Press Ctrl+Enter to Send");
    frmMain.entlabel2.set_caption(enter_sends ? "Ctrl+Enter for new line" : "");
}

void SettingsStore::apply_stacking()
{
    for (forms::Popup& popup : forms_.popup) {
        (forms_.settings.ontop.on() ? popup.ontop : popup.ontopoff).run();
    }
}

void SettingsStore::save()
{
    auto& frmMain = forms_.frmMain;
    auto const& settings = forms_.settings;
    files_.write(paths_.settings, saved_text());
    frmMain.autocheckusers.set(settings.autocheckusers.value());
    if (frmMain.autocheckusers.on()) {
        frmMain.usercount = "0";
    }
    apply_auto_respond();
    frmMain.followsessionstart.run();
    frmMain.stopwatchdog.run();
}

std::string SettingsStore::saved_text()
{
    auto& frmMain = forms_.frmMain;
    auto const& settings = forms_.settings;
    Writer file;
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
    frmMain.wavefile = settings.wavefile;
    frmMain.entersend.set(settings.entersend.value());
    file.entry("WINPOSX", text::plain_decimal(frmMain.window.left));
    file.entry("WINPOSY", text::plain_decimal(frmMain.window.top));
    file.entry("AUTOCHECKUSERS", settings.autocheckusers.value());
    file.line("End");
    return file.text();
}

} // namespace core
