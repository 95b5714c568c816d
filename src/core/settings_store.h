#pragma once

#include "core/paths.h"
#include "forms/forms.h"
#include "platform/files.h"

namespace core {

/// `settings.txt`: every option, one line each, "[", the key in 20 characters, "]=", the value.
class SettingsStore {
public:
    SettingsStore(forms::Forms& forms, platform::Files& files, Paths const& paths);

    /// Writes the file of a first run. Raises a Failure.
    void write_default();

    /// Reads the file into the options and applies what follows from each. A flag that is no number
    /// raises a Failure, as does a file that cannot be read.
    void load();

    /// Writes the file whole and applies the options again. Raises a Failure.
    void save();

private:
    void apply_sound_path();
    void apply_auto_check();

    forms::Forms& forms_;
    platform::Files& files_;
    Paths const& paths_;
};

} // namespace core
