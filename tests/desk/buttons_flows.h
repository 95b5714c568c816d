#pragma once

#include "tests/desk/desk_flows.h"

#include <cstddef>
#include <string>
#include <string_view>

/// What the stories of quick buttons have in common.
namespace desk {

inline constexpr controls::Colour yellow{255, 255, 128};
inline constexpr controls::Colour green{128, 255, 128};
inline constexpr controls::Colour grey{224, 224, 224};
inline constexpr controls::Colour red{255, 0, 0};
inline constexpr controls::Colour text_yellow{255, 255, 0};
inline constexpr controls::Colour black{0, 0, 0};

/// A saved `buttons.txt` whose first rows are these lines; the others are empty.
[[nodiscard]] std::string buttons_file(flows::Lines lines);
/// The same with this line as row `number` and all others empty.
[[nodiscard]] std::string buttons_file(std::size_t number, std::string_view line);

/// Alice's quick buttons. Nobody has started.
class Buttons : public Desk {
protected:
    using Desk::Desk;

    /// Lays this file on Alice's disk and starts all three.
    void open_with(std::string_view file);

    [[nodiscard]] std::string file() { return alice.files.content("buttons.txt"); }
    [[nodiscard]] forms::FrmMain& frmMain() { return alice.frmMain(); }
    [[nodiscard]] controls::Button& button(std::size_t number) { return frmMain().qb.at(number); }
    /// A row of the settings window.
    [[nodiscard]] controls::TextBox& caption(std::size_t number)
    {
        return alice.settings().qsend.at(number);
    }
    [[nodiscard]] controls::TextBox& text(std::size_t number)
    {
        return alice.settings().qsendtext.at(number);
    }
    [[nodiscard]] controls::CheckBox& at_once(std::size_t number)
    {
        return alice.settings().qsendi.at(number);
    }
    /// Both boxes of a row have this colour.
    void expect_row_colour(std::size_t number, controls::Colour colour);
    /// The response buttons of one number, on all eleven windows.
    void for_each_answer(std::size_t number, std::function<void(controls::Button&)> const& visit);

    // What Alice does in the settings window.
    void fill_caption(std::size_t number, std::string_view words);
    void fill_text(std::size_t number, std::string_view words);
    void tick(std::size_t number);
    void save() { alice.person.click(alice.settings().window, alice.settings().savebtn); }
    void cancel() { alice.person.click(alice.settings().window, alice.settings().cancelbtn); }
};

/// The same with the table of a first start.
class DefaultButtons : public Buttons {
protected:
    DefaultButtons() { open(); }
};

} // namespace desk
