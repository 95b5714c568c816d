#include "tap/checks/bound_ports.h"

#include <charconv>
#include <optional>
#include <sstream>
#include <string>

namespace tap {

namespace {

// The columns of a row, counted from 0.
constexpr std::size_t local_address = 1;
constexpr std::size_t inode = 9;
constexpr std::size_t drops = 12;

std::vector<std::string> columns(std::string const& row)
{
    std::istringstream words(row);
    std::vector<std::string> all;
    for (std::string word; words >> word;) {
        all.push_back(word);
    }
    return all;
}

template <typename Number>
bool read(std::string_view text, int base, Number& number)
{
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    return error == std::errc() && end == text.data() + text.size();
}

std::optional<BoundPort> bound_port(std::string const& row)
{
    constexpr int decimal = 10;
    constexpr int hexadecimal = 16;
    constexpr int last_port = 65'535;
    auto const column = columns(row);
    if (column.size() <= drops) {
        return {};
    }
    std::string_view const address = column[local_address];
    auto const colon = address.rfind(':');
    BoundPort found;
    bool const whole = colon != std::string_view::npos &&
                       read(address.substr(colon + 1), hexadecimal, found.port) &&
                       found.port >= 0 && found.port <= last_port &&
                       read(column[inode], decimal, found.inode) &&
                       read(column[drops], decimal, found.drops);
    return whole ? std::optional(found) : std::nullopt;
}

} // namespace

std::vector<BoundPort> bound_ports(std::string_view table)
{
    std::istringstream rows{std::string(table)};
    std::vector<BoundPort> ports;
    for (std::string row; std::getline(rows, row);) {
        if (auto const port = bound_port(row)) {
            ports.push_back(*port);
        }
    }
    return ports;
}

} // namespace tap
