#include "core/settings_keys.h"

#include "core/settings_effects.h"
#include "core/settings_lines.h"
#include "text/numbers.h"

#include <algorithm>
#include <array>

namespace core::settings_keys {

namespace {

using forms::Forms;
using forms::Settings;

/// The splash bar's reading once start-up is over.
constexpr int start_up_is_over = 15;
constexpr std::size_t forward_entry = 3;
constexpr std::size_t off_entry = 4;

template <controls::CheckBox Settings::*option>
void flag(Forms& forms, std::string_view value)
{
    (forms.settings.*option).set(text::flag_value(value));
}

void my_name(Forms& forms, std::string_view value)
{
    forms.frmMain.friendlyname = forms.frmMain.letters.upper(value);
    forms.settings.friendlyname.set_caption(forms.frmMain.friendlyname);
}

void listening_port(Forms& forms, std::string_view value)
{
    int const port = text::leading_whole_number(value);
    forms.frmMain.udplistenport = port;
    forms.frmMain.udpsendremote = port;
}

void sending_port(Forms& forms, std::string_view value)
{
    int const port = text::leading_whole_number(value);
    forms.frmMain.udpsendport = port;
    forms.frmMain.udplistenremote = port;
}

void sound_on(Forms& forms, std::string_view value)
{
    flag<&Settings::soundon>(forms, value);
    forms.frmMain.Check2.set(forms.settings.soundon.value());
}

void offer_response(Forms& forms, std::size_t index, std::string_view response)
{
    forms.settings.ar.at(index).set_text(response);
    auto& entry = forms.menuform.autores[index];
    entry.visible = !response.empty();
    if (entry.visible) {
        entry.caption = response;
    }
}

void first_response(Forms& forms, std::string_view value)
{
    offer_response(forms, 0, value);
    forms.settings.autorespond.set_text(value);
}

template <std::size_t index>
void response(Forms& forms, std::string_view value)
{
    offer_response(forms, index, value);
}

void forwarding_response(Forms& forms, std::string_view value)
{
    constexpr std::string_view opening = "Forward to: ";
    if (!value.starts_with("Forw")) {
        value = {};
    }
    offer_response(forms, forward_entry, value);
    // Cut by length: a text that merely begins with "Forw" is kept, and cut the same way.
    forms.settings.ar3temp.set_caption(value.substr(std::min(opening.size(), value.size())));
}

void allow_auto_respond(Forms& forms, std::string_view value)
{
    flag<&Settings::autoresmaster>(forms, value);
    settings_effects::offer_auto_respond(forms);
    // Every load leaves auto-respond off.
    forms.menuform.autores.check_only(off_entry);
    forms.frmMain.away.set(0);
    forms.frmMain.away.clicked.run();
}

void message_font_size(Forms& forms, std::string_view value)
{
    forms.settings.msgfontsize.set_caption(value);
    settings_effects::use_message_font(forms);
}

void user_list_font(Forms& forms, std::string_view value)
{
    flag<&Settings::userlistfont>(forms, value);
    settings_effects::use_list_font(forms);
}

template <controls::Twips controls::Window::*side>
void window_place(Forms& forms, std::string_view value)
{
    // A reload leaves the window where a person has moved it.
    if (forms.loading.ProgressBar1.value() != start_up_is_over) {
        forms.frmMain.window.*side = std::max(0.0F, text::leading_single(value));
    }
}

void wave_file(Forms& forms, std::string_view value)
{
    forms.settings.wavefile = value;
}

void auto_check_users(Forms& forms, std::string_view value)
{
    flag<&Settings::autocheckusers>(forms, value);
    forms.frmMain.autocheckusers.set(forms.settings.autocheckusers.value());
}

/// The companion process is off whatever the file says.
void ignore(Forms& /*forms*/, std::string_view /*value*/) {}

struct Key {
    std::string_view name;
    void (*take)(Forms&, std::string_view value);
};

constexpr std::array keys{
    Key{"STARTWITHWINDOWS", flag<&Settings::autostartup>},
    Key{"MINIMIZEONSTART", flag<&Settings::startminimized>},
    Key{"KEEPINFRONT", flag<&Settings::ontop>},
    Key{"MY NAME", my_name},
    Key{"LISTENINGPORT", listening_port},
    Key{"SENDINGPORT", sending_port},
    Key{"STARTCLEARUSERCACHE", flag<&Settings::startclearusers>},
    Key{"AUTORESPONSEFORWARD", flag<&Settings::autoreply>},
    Key{"RESETPORTS", flag<&Settings::resetports>},
    Key{"PLAYSOUND", sound_on},
    Key{"REPLYTOALL", flag<&Settings::replytoall>},
    Key{"SHOWOWN", flag<&Settings::myown>},
    Key{"AUTORESPONSEMSG", first_response},
    Key{"AUTORESPONSEMSG1", response<1>},
    Key{"AUTORESPONSEMSG2", response<2>},
    Key{"AUTORESPONSEMSG3", forwarding_response},
    Key{"AUTORESPONSEALLOW", allow_auto_respond},
    Key{"SHOWMEINLIST", flag<&Settings::showme>},
    Key{"MESSAGEFONTSIZE", message_font_size},
    Key{"USERLISTFONT", user_list_font},
    Key{"USEWATCHDOG", ignore},
    Key{"WINPOSX", window_place<&controls::Window::left>},
    Key{"WINPOSY", window_place<&controls::Window::top>},
    Key{"ENTERSEND", flag<&Settings::entersend>},
    Key{"HIDEENTERSENDTIP", flag<&Settings::hidetip>},
    Key{"WAVEFILE", wave_file},
    Key{"AUTOCHECKUSERS", auto_check_users},
};

} // namespace

void take(std::string_view field, Forms& forms)
{
    auto const found = std::ranges::find_if(keys, [field](Key const& key) {
        return field.starts_with(settings_lines::key_line(key.name));
    });
    if (found != keys.end()) {
        found->take(forms, field.substr(settings_lines::value_place));
    }
}

} // namespace core::settings_keys
