#include "tests/desk/buttons_flows.h"

namespace desk {

namespace {

constexpr std::size_t rows = 24;
constexpr std::string_view empty_row = R"("","",0)";

} // namespace

std::string buttons_file(flows::Lines lines)
{
    lines.resize(rows, std::string(empty_row));
    return sim::lines(lines);
}

std::string buttons_file(std::size_t number, std::string_view line)
{
    flows::Lines lines(number - 1, std::string(empty_row));
    lines.emplace_back(line);
    return buttons_file(lines);
}

void Buttons::open_with(std::string_view file)
{
    alice.files.put("buttons.txt", file);
    open();
}

void Buttons::expect_row_colour(std::size_t number, controls::Colour colour)
{
    EXPECT_EQ(caption(number).background, colour) << number;
    EXPECT_EQ(text(number).background, colour) << number;
}

void Buttons::for_each_answer(std::size_t number,
                              std::function<void(controls::Button&)> const& visit)
{
    alice.forms().for_each_popup([&](forms::Popup& popup) { visit(popup.quick(number)); });
}

void Buttons::fill_caption(std::size_t number, std::string_view words)
{
    alice.person.fill(alice.settings().window, caption(number), words);
}

void Buttons::fill_text(std::size_t number, std::string_view words)
{
    alice.person.fill(alice.settings().window, text(number), words);
}

void Buttons::tick(std::size_t number)
{
    alice.person.tick(alice.settings().window, at_once(number));
}

} // namespace desk
