#pragma once

#include "forms/forms.h"
#include "platform/files.h"

#include <cstddef>
#include <string>

namespace config {

/// `buttons.txt` and what follows from it: 24 canned messages, twelve on the main window, twelve on
/// every message window.
class QuickButtons {
public:
    /// `path` is that of the file.
    QuickButtons(forms::Forms& forms, platform::Files& files, std::string path);
    QuickButtons(QuickButtons const&) = delete;
    QuickButtons& operator=(QuickButtons const&) = delete;

    /// Reads the 24 rows into the edit controls and the live buttons; writes the default file first
    /// if there is none. Fewer rows raise a Failure.
    void loadbuttons();
    /// Writes the edit controls to the file. Raises a Failure.
    void SAVEBUTTONS();

private:
    struct Row {
        std::string caption;
        std::string message;
        int immediate = 0;
    };

    void attach_editing(std::size_t number);
    void write_default();
    void set_response(std::size_t number, Row const& row);
    void set_send(std::size_t number, Row const& row);
    void set_edit_controls(std::size_t number, Row const& row);
    void colour_while_editing(std::size_t number);
    void colour_row(std::size_t number, controls::Colour colour);
    [[nodiscard]] bool is_emergency(std::string const& caption) const;

    forms::Forms& forms_;
    platform::Files& files_;
    std::string path_;
};

} // namespace config
