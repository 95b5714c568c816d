#include "core/settings_store.h"

#include "core/settings_effects.h"
#include "core/settings_keys.h"
#include "core/settings_texts.h"
#include "text/fields.h"

namespace core {

SettingsStore::SettingsStore(forms::Forms& forms, platform::Files& files, Paths const& paths)
    : forms_(forms), files_(files), paths_(paths)
{
}

void SettingsStore::write_default()
{
    files_.write(paths_.settings, settings_texts::of_first_run(forms_.frmMain, paths_.sound));
}

void SettingsStore::load()
{
    forms_.settings.watchdog.set(0);
    if (files_.exists(paths_.settings)) {
        auto const content = files_.read(paths_.settings);
        // Read by fields, not by lines: a comma cuts a value, and what follows it is a field of its
        // own. Each key takes effect where it stands in the file.
        for (text::FieldReader fields(content); !fields.at_end();) {
            settings_keys::take(fields.next(), forms_);
        }
    }
    apply_sound_path();
    settings_effects::use_enter_key(forms_);
    forms_.frmMain.followsessionstart.run();
    settings_effects::stack_popups(forms_);
}

void SettingsStore::apply_sound_path()
{
    auto& chosen = forms_.settings.wavefile;
    if (chosen.empty() || !files_.is_file(chosen)) {
        chosen = paths_.sound;
    }
    forms_.frmMain.wavefile = chosen;
}

void SettingsStore::save()
{
    files_.write(paths_.settings, settings_texts::of_save(forms_));
    forms_.frmMain.wavefile = forms_.settings.wavefile;
    forms_.frmMain.entersend.set(forms_.settings.entersend.value());
    apply_auto_check();
    settings_effects::offer_auto_respond(forms_);
    forms_.frmMain.followsessionstart.run();
    forms_.frmMain.stopwatchdog.run();
}

void SettingsStore::apply_auto_check()
{
    auto& frmMain = forms_.frmMain;
    frmMain.autocheckusers.set(forms_.settings.autocheckusers.value());
    if (frmMain.autocheckusers.on()) {
        frmMain.usercount = "0"; // A save restarts the count of the half-hourly check.
    }
}

} // namespace core
