#include "core/program.h"

#include "core/version.h"
#include "core/web_hosts.h"

#include <utility>

namespace core {

Program::Program(platform::Platform platform, text::CharacterSet const& letters)
    : forms(letters), platform_(platform), paths_(platform.process.program_folder()),
      transport_(forms.frmMain, platform_.listening, platform_.sending),
      trouble_({.frmMain = forms.frmMain,
                .log = forms.log,
                .menuform = forms.menuform,
                .transport = transport_,
                .boxes = platform_.boxes,
                .clock = platform_.clock,
                .process = platform_.process}),
      ports_(forms.frmMain, transport_, platform_.boxes),
      presence_(forms.frmMain, forms.settings, transport_, platform_.environment),
      users_file_(forms.frmMain, forms.settings, platform_.files, platform_.environment,
                  paths_.users),
      watch_({.frmMain = forms.frmMain,
              .log = forms.log,
              .presence = presence_,
              .transport = transport_,
              .trouble = trouble_,
              .clock = platform_.clock}),
      pool_(forms, platform_.clock), log_({.frmMain = forms.frmMain,
                                           .log = forms.log,
                                           .clock = platform_.clock,
                                           .files = platform_.files},
                                          paths_.logs),
      log_window_({.frmMain = forms.frmMain,
                   .log = forms.log,
                   .rolling_log = log_,
                   .boxes = platform_.boxes,
                   .clock = platform_.clock,
                   .environment = platform_.environment,
                   .files = platform_.files,
                   .outside = platform_.outside},
                  paths_.folder),
      history_({.forms = forms,
                .boxes = platform_.boxes,
                .files = platform_.files,
                .screen = platform_.screen},
               paths_.history),
      away_(forms.frmMain, forms.menuform, forms.settings, forms.historyfrm),
      sent_records_(forms.log, forms.historyfrm, platform_.clock, letters),
      stand_in_(forms, transport_, platform_.clock),
      inbound_(forms, pool_, stand_in_, platform_.clock),
      queue_(forms.frmMain, presence_, inbound_), composer_({.forms = forms,
                                                             .away = away_,
                                                             .records = sent_records_,
                                                             .transport = transport_,
                                                             .trouble = trouble_,
                                                             .environment = platform_.environment}),
      replies_({.forms = forms,
                .away = away_,
                .records = sent_records_,
                .transport = transport_,
                .trouble = trouble_,
                .boxes = platform_.boxes,
                .environment = platform_.environment}),
      shortcuts_(forms.frmMain, forms.settings),
      quick_buttons_(forms, platform_.files, paths_.buttons),
      groups_(forms, platform_.boxes, platform_.files, paths_.groups),
      settings_window_({.forms = forms,
                        .transport = transport_,
                        .trouble = trouble_,
                        .users_file = users_file_,
                        .boxes = platform_.boxes,
                        .clock = platform_.clock,
                        .environment = platform_.environment,
                        .files = platform_.files,
                        .outside = platform_.outside},
                       paths_.folder, version_text()),
      hosts_(web_hosts()), message_sound_(forms.frmMain, forms.settings, platform_.sound),
      tray_(forms, platform_.tray_icon, platform_.boxes, platform_.process),
      tools_menu_({.forms = forms,
                   .environment = platform_.environment,
                   .files = platform_.files,
                   .outside = platform_.outside,
                   .hosts = hosts_},
                  paths_.folder),
      updates_({.frmMain = forms.frmMain,
                .transport = transport_,
                .trouble = trouble_,
                .boxes = platform_.boxes,
                .environment = platform_.environment,
                .files = platform_.files,
                .outside = platform_.outside,
                .web = platform_.web,
                .hosts = hosts_},
               {.major = major_version, .minor = minor_version, .revision = revision}),
      session_start_({.frmMain = forms.frmMain,
                      .settings = forms.settings,
                      .environment = platform_.environment,
                      .files = platform_.files,
                      .entries = platform_.session_entries},
                     paths_.program),
      companions_(forms.frmMain, platform_.processes), settings_(forms, platform_.files, paths_),
      naming_(forms.frmMain, platform_.boxes, platform_.environment),
      leaving_({.forms = forms,
                .presence = presence_,
                .transport = transport_,
                .trouble = trouble_,
                .log = log_,
                .boxes = platform_.boxes}),
      start_up_({.forms = forms,
                 .platform = platform_,
                 .paths = paths_,
                 .update_address = hosts_.update + "/vexlo_setup.exe",
                 .settings = settings_,
                 .naming = naming_,
                 .leaving = leaving_,
                 .pool = pool_,
                 .log = log_,
                 .transport = transport_,
                 .trouble = trouble_})
{
    attach_popups();
    attach_commands();
}

void Program::attach_popups()
{
    using popups::Conversation;
    Conversation::Uses const uses{.forms = forms,
                                  .pool = pool_,
                                  .boxes = platform_.boxes,
                                  .clock = platform_.clock,
                                  .environment = platform_.environment,
                                  .files = platform_.files,
                                  .outside = platform_.outside};
    for (forms::Popup& popup : forms.popup) {
        conversations_.push_back(
            std::make_unique<Conversation>(popup, Conversation::Kind::pool, uses));
    }
    conversations_.push_back(
        std::make_unique<Conversation>(forms.popuplast, Conversation::Kind::recall, uses));
}

void Program::attach_commands()
{
    auto& frmMain = forms.frmMain;
    platform_.listening.arrived = [this](std::string datagram) {
        queue_.arrive(std::move(datagram));
    };
    frmMain.Timer1.tick.attach([this] { watch_.tick(); });
    frmMain.Timer2.tick.attach([this] { presence_.check_users_now(); });
    frmMain.getusers.attach([this] { presence_.getusers(); });
    frmMain.Command5.attach([this] { presence_.dash(); });
    frmMain.changeports1.attach([this] { ports_.changeports1(); });
    frmMain.changeports2.attach([this] { ports_.changeports2(); });
    frmMain.Command6.attach([this] { ports_.Command6(); });
    frmMain.Command1.attach([this] { naming_.Command1(); });
    frmMain.makename.attach([this] { naming_.makename(); });
    frmMain.loadusers.attach([this] { loadusers(); });
    frmMain.saveusers.attach([this] { saveusers(); });
    frmMain.saveallsettings.attach([this] { settings_.save(); });
    frmMain.playsound.attach([this] { message_sound_.playsound(); });
    frmMain.soundtest.attach([this] { message_sound_.soundtest(); });
}

void Program::loadusers()
{
    settings_.load();
    users_file_.load();
}

void Program::saveusers()
{
    users_file_.save();
    settings_.save();
}

} // namespace core
