#include "tap/capture.h"

#include "tap/escape.h"

#include "text/failure.h"
#include "text/fields.h"

#include <charconv>
#include <optional>

namespace tap::capture {

namespace {

using std::chrono::microseconds;

constexpr std::size_t largest_datagram = 65'507;
constexpr int second = 1'000'000;
constexpr std::size_t decimals = 6;
/// More than thirty years; what is later is no time.
constexpr std::size_t most_digits = 9;

/// What is wrong with a line, to be told with its number.
struct BadLine {
    std::string_view reason;
};

std::string six_digits(long long micros)
{
    auto const digits = std::to_string(micros);
    return std::string(decimals - digits.size(), '0') + digits;
}

/// What stands before the next blank; the line loses both.
std::string_view take_word(std::string_view& line)
{
    auto const end = line.find(' ');
    auto const word = line.substr(0, end);
    line.remove_prefix(end == line.npos ? line.size() : end + 1);
    return word;
}

/// A number in digits alone, as long as it may be.
std::optional<int> number_of(std::string_view digits, std::size_t longest, int largest)
{
    int number = 0;
    bool const is_plain = !digits.empty() && digits.size() <= longest &&
                          digits.find_first_not_of("0123456789") == digits.npos;
    if (!is_plain) {
        return std::nullopt;
    }
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number <= largest ? std::optional(number) : std::nullopt;
}

microseconds time_of(std::string_view word)
{
    auto const point = word.find('.');
    auto const seconds = number_of(word.substr(0, point), most_digits, 999'999'999);
    auto const rest = point == word.npos ? std::string_view() : word.substr(point + 1);
    auto const micros = number_of(rest, decimals, second - 1);
    if (!seconds || !micros || rest.size() != decimals) {
        throw BadLine{"the time is not in seconds with six decimals"};
    }
    return std::chrono::seconds(*seconds) + microseconds(*micros);
}

bool is_address(std::string_view word)
{
    int parts = 0;
    for (std::size_t begin = 0; begin <= word.size(); ++parts) {
        auto const end = std::min(word.find('.', begin), word.size());
        if (!number_of(word.substr(begin, end - begin), 3, 255)) {
            return false;
        }
        begin = end + 1;
    }
    return parts == 4;
}

int port_of(std::string_view word)
{
    auto const port = number_of(word, 5, 65'535);
    if (!port) {
        throw BadLine{"a port is not a number up to 65535"};
    }
    return *port;
}

std::string bytes_of(std::string_view quoted)
{
    if (quoted.size() < 2 || !quoted.starts_with('"') || !quoted.ends_with('"')) {
        throw BadLine{"the bytes are not in quotes"};
    }
    auto bytes = unescaped(quoted.substr(1, quoted.size() - 2));
    if (!bytes) {
        throw BadLine{"the bytes are not escaped as they must be"};
    }
    if (bytes->size() > largest_datagram) {
        throw BadLine{"the bytes are more than a datagram can hold"};
    }
    return std::move(*bytes);
}

Datagram datagram_of(std::string_view line)
{
    Datagram datagram;
    datagram.when = time_of(take_word(line));
    auto const sender = take_word(line);
    auto const colon = std::min(sender.find(':'), sender.size());
    if (!is_address(sender.substr(0, colon)) || colon == sender.size()) {
        throw BadLine{"the sender is not an address and a port"};
    }
    datagram.from = sender.substr(0, colon);
    datagram.from_port = port_of(sender.substr(colon + 1));
    if (take_word(line) != ">") {
        throw BadLine{"there is no > behind the sender"};
    }
    datagram.to_port = port_of(take_word(line));
    datagram.bytes = bytes_of(line);
    return datagram;
}

void require_head(std::string_view line)
{
    if (line == head) {
        return;
    }
    throw BadLine{line.starts_with("vexlo capture ") ? "this version of the format is not known"
                                                     : "this is no capture file"};
}

} // namespace

std::string comment(std::string_view words)
{
    std::string line = "# ";
    for (char const letter : words) {
        line += letter == '\r' || letter == '\n' ? ' ' : letter;
    }
    return line + "\n";
}

std::string line(Datagram const& datagram)
{
    auto const micros = datagram.when.count();
    return std::to_string(micros / second) + "." + six_digits(micros % second) + " " +
           datagram.from + ":" + std::to_string(datagram.from_port) + " > " +
           std::to_string(datagram.to_port) + " \"" + escaped(datagram.bytes) + "\"\n";
}

std::vector<Datagram> read(std::string_view file)
{
    std::vector<Datagram> all;
    int number = 0;
    try {
        text::for_each_line(file, [&](std::string_view line) {
            ++number;
            if (number == 1) {
                require_head(line);
            } else if (!line.empty() && !line.starts_with('#')) {
                all.push_back(datagram_of(line));
            }
        });
        if (number == 0) {
            number = 1;
            require_head({});
        }
    } catch (BadLine const& bad) {
        throw text::Failure("line " + std::to_string(number) + ": " + std::string(bad.reason),
                            number, "capture");
    }
    return all;
}

} // namespace tap::capture
