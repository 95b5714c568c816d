#pragma once

#include "forms/forms.h"
#include "platform/boxes.h"
#include "platform/files.h"
#include "platform/screen.h"

#include <string>
#include <string_view>

namespace records {

/// The last hundred messages: the list, its file, and how a message comes back from it.
class History {
public:
    struct Uses {
        forms::Forms& forms;
        platform::Boxes& boxes;
        platform::Files& files;
        platform::Screen const& screen;
    };

    /// `path` is that of `hist.dat`.
    History(Uses uses, std::string path);
    History(History const&) = delete;
    History& operator=(History const&) = delete;

    /// Reads the file, if there is one. Stops where it is damaged, with a Failure; the rows before
    /// that stay.
    void load();
    /// Trims and writes the file; an empty list leaves the old file alone. Raises a Failure.
    void save();
    /// Trims the list and shows its last row; ignores all failures.
    void historyrefresh();
    /// Shows the selected row.
    void showrow();
    /// Fills the recall window from the row in use and shows it.
    void recallrow();
    /// Docks the window to the main window.
    void anchorwindow();
    /// Brings the window up, docked if it is to be.
    void open();

private:
    void attach_window();
    void trim();
    void show_text();
    void colourrow();
    void double_clicked();
    void recall_to_compose_box();
    void recall_user(std::string_view name);
    void recall_group(std::string_view place);
    void show_main();
    void choose_option(std::size_t entry);
    void toggle(std::size_t entry, controls::CheckBox& option);
    void mark_options();
    void clear();
    void stack();
    void toggle_main();
    void close();

    Uses uses_;
    forms::HistoryFrm& form_;
    std::string path_;
};

} // namespace records
