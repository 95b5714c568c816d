#include "config/quick_buttons.h"

#include "text/failure.h"
#include "text/fields.h"
#include "text/numbers.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace config {

namespace {

constexpr std::size_t rows = 24;
constexpr std::size_t first_response = forms::Popup::first_button;

constexpr controls::Colour yellow{255, 255, 128};
constexpr controls::Colour immediate_green{128, 255, 128};
constexpr controls::Colour empty_grey{224, 224, 224};
constexpr controls::Colour emergency_red{255, 0, 0};
constexpr controls::Colour emergency_yellow{255, 255, 0};
constexpr controls::Colour black{0, 0, 0};

struct DefaultRow {
    std::string_view caption;
    std::string_view message;
    char immediate;
};

constexpr std::array<DefaultRow, rows> default_rows{{
    {"Call on 1", "You have a call on line 1", '0'},
    {"Call on 2", "You have a call on line 2", '0'},
    {"Spouse Calling", "Your spouse is on the phone", '1'},
    {"Busy?", "Are you busy?", '1'},
    {"See me", "Please come see me", '0'},
    {"Lunch?", "What would you like for lunch?", '0'},
    {"Ready?", "Are you ready?", '0'},
    {"Meeting Starting", "The meeting is starting now.", '0'},
    {"X is here", "? is here to see you.", '0'},
    {"Call Holding", "You have a call holding", '1'},
    {"", "", '0'},
    {"", "", '0'},
    {"OK", "OK", '1'},
    {"Take message", "Please take a message", '0'},
    {"Get number", "Get a phone number", '0'},
    {"Will call back", "Tell them I will call back", '1'},
    {"At my desk", "I'm at my desk", '1'},
    {"On a call", "I'm on a call", '1'},
    {"Yes", "Yes", '1'},
    {"No", "No", '1'},
    {"Thanks", "Thank you", '1'},
    {"", "", '0'},
    {"", "", '0'},
    {"", "", '0'},
}};

std::string quoted(std::string_view words)
{
    return "\"" + std::string(words) + "\"";
}

std::string next_field(text::FieldReader& fields)
{
    if (fields.at_end()) {
        throw text::Failure("Input past end of file", 62, "buttons");
    }
    return fields.next();
}

controls::Colour colour_of(int immediate)
{
    return immediate == 0 ? yellow : immediate_green;
}

} // namespace

QuickButtons::QuickButtons(forms::Forms& forms, platform::Files& files, std::string path)
    : forms_(forms), files_(files), path_(std::move(path))
{
    forms_.settings.loadbuttons.attach([this] { loadbuttons(); });
    forms_.settings.SAVEBUTTONS.attach([this] { SAVEBUTTONS(); });
    for (std::size_t number = 1; number <= rows; ++number) {
        attach_editing(number);
    }
}

void QuickButtons::attach_editing(std::size_t number)
{
    auto& settings = forms_.settings;
    settings.qsend[number].changed.attach([this, number] { colour_while_editing(number); });
    settings.qsendi[number].clicked.attach([this, number] { colour_while_editing(number); });
}

void QuickButtons::colour_while_editing(std::size_t number)
{
    auto const& settings = forms_.settings;
    int const immediate = settings.qsendi[number].value();
    if (is_emergency(settings.qsend[number].text())) {
        colour_row(number, emergency_red);
    } else if (immediate == 0 || immediate == 1) {
        colour_row(number, colour_of(immediate)); // A box that is greyed leaves the colour alone.
    }
}

void QuickButtons::colour_row(std::size_t number, controls::Colour colour)
{
    forms_.settings.qsend[number].background = colour;
    forms_.settings.qsendtext[number].background = colour;
}

bool QuickButtons::is_emergency(std::string const& caption) const
{
    return forms_.frmMain.letters.lower(caption).find("emergency") != std::string::npos;
}

void QuickButtons::loadbuttons()
{
    if (!files_.exists(path_)) {
        write_default();
    }
    auto const content = files_.read(path_);
    text::FieldReader fields(content);
    for (std::size_t number = 1; number <= rows; ++number) {
        Row row;
        row.caption = next_field(fields);
        row.message = next_field(fields);
        row.immediate = text::leading_whole_number(next_field(fields));
        if (number >= first_response) {
            set_response(number, row);
        } else {
            set_send(number, row);
        }
    }
    forms_.for_each_popup(
        [this](forms::Popup& popup) { popup.Check1.set(forms_.settings.replytoall.value()); });
}

void QuickButtons::set_edit_controls(std::size_t number, Row const& row)
{
    auto& settings = forms_.settings;
    settings.qsend[number].set_text(row.caption);
    settings.qsendtext[number].set_text(row.message);
    settings.qsendi[number].set(row.immediate);
    colour_row(number, colour_of(row.immediate));
}

void QuickButtons::set_response(std::size_t number, Row const& row)
{
    // The emergency word means nothing here: such a row is yellow or green again.
    set_edit_controls(number, row);
    forms_.for_each_popup([&](forms::Popup& popup) {
        auto& button = popup.quick(number);
        button.caption = row.caption;
        button.background = row.caption.empty() ? empty_grey : colour_of(row.immediate);
        button.enabled = !row.caption.empty();
    });
}

void QuickButtons::set_send(std::size_t number, Row const& row)
{
    set_edit_controls(number, row);
    auto& button = forms_.frmMain.qb.at(number);
    button.caption = row.caption;
    button.background = colour_of(row.immediate);
    button.text_colour = black;
    if (is_emergency(row.caption)) {
        button.background = emergency_red;
        button.text_colour = emergency_yellow;
        colour_row(number, emergency_red);
    }
    if (row.caption.empty()) {
        button.background = empty_grey;
    }
    button.enabled = !row.caption.empty();
}

void QuickButtons::write_default()
{
    std::string content;
    for (DefaultRow const& row : default_rows) {
        content += quoted(row.caption) + "," + quoted(row.message) + ",\"" + row.immediate + "\"";
        content += text::line_end;
    }
    content += text::line_end;
    files_.write(path_, content);
}

void QuickButtons::SAVEBUTTONS()
{
    auto& settings = forms_.settings;
    std::string content;
    for (std::size_t number = 1; number <= rows; ++number) {
        auto message = settings.qsendtext[number].text();
        std::ranges::replace(message, '"', '\'');
        settings.qsendtext[number].set_text(message);
        // The third field stands bare here and in quotes in the default file: the reader takes
        // both.
        content += quoted(settings.qsend[number].text()) + "," + quoted(message) + "," +
                   std::to_string(settings.qsendi[number].value());
        content += text::line_end;
    }
    files_.write(path_, content);
}

} // namespace config
