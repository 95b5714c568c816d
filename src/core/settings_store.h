#pragma once

#include "core/paths.h"
#include "forms/forms.h"
#include "platform/files.h"

#include <string>
#include <string_view>

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
    void read_field(std::string_view field);
    void read_response(std::size_t index, std::string_view text);
    void read_forward(std::string_view text);
    void apply_auto_respond();
    void check_off_entry();
    void read_font_size(std::string_view text);
    void apply_list_font();
    void read_place(float& side, std::string_view text);
    void apply_sound_path();
    void apply_enter_key();
    void apply_stacking();
    [[nodiscard]] std::string saved_text();

    forms::Forms& forms_;
    platform::Files& files_;
    Paths const& paths_;
};

} // namespace core
