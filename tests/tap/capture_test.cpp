#include "tap/capture.h"
#include "tap/escape.h"

#include "tests/tap/datagrams.h"
#include "text/failure.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;
using tap::Datagram;
using testing::IsEmpty;
using testing::SizeIs;

std::string file_of(std::vector<Datagram> const& datagrams)
{
    auto file = std::string(tap::capture::head) + "\n";
    for (auto const& each : datagrams) {
        file += tap::capture::line(each);
    }
    return file;
}

std::string complaint_about(std::string_view file)
{
    try {
        (void)tap::capture::read(file);
    } catch (text::Failure const& failure) {
        return failure.text;
    }
    return "";
}

std::string complaint_about_line(std::string const& line)
{
    auto const complaint = complaint_about("vexlo capture 1\n# words\n" + line + "\n");
    EXPECT_TRUE(complaint.empty() || complaint.starts_with("line 3: ")) << complaint;
    return complaint.empty() ? "" : complaint.substr(8);
}

TEST(Capture, IsOneLineADatagram)
{
    Datagram const hello{.when = 12s + 345us,
                         .from = "192.168.0.7",
                         .from_port = 4112,
                         .to_port = 4111,
                         .bytes = "[ROOM07\\BOB][ALL]BOB> \"H\xE9\"\r\n"};

    EXPECT_EQ(tap::capture::line(hello), "12.000345 192.168.0.7:4112 > 4111 "
                                         R"("[ROOM07\\BOB][ALL]BOB> \"H\xe9\"\r\n")"
                                         "\n");
}

TEST(Capture, EveryDatagramComesBackAsItWas)
{
    auto bytes = datagrams::hand_picked();
    std::string all_bytes;
    for (int value = 0; value < 256; ++value) {
        all_bytes += static_cast<char>(value);
    }
    bytes.push_back(all_bytes);
    for (auto const& each : datagrams::mutated(bytes, 500, 7)) {
        bytes.push_back(each);
    }
    std::vector<Datagram> datagrams;
    for (auto const& each : bytes) {
        datagrams.push_back({.when = std::chrono::microseconds(999'999 * datagrams.size()),
                             .from = "10.7.0.255",
                             .from_port = 65'535,
                             .to_port = 0,
                             .bytes = each});
    }

    EXPECT_EQ(tap::capture::read(file_of(datagrams)), datagrams);
}

TEST(Capture, IsPlainAsciiWhateverItHolds)
{
    auto const line =
        tap::capture::line({.from = "1.2.3.4", .bytes = "\x1b[2J\0\x7f\x80\xff\r\n\t"s});

    EXPECT_EQ(line, "0.000000 1.2.3.4:0 > 0 \"\\x1b[2J\\x00\\x7f\\x80\\xff\\r\\n\\t\"\n");
}

TEST(Capture, CommentsAndEmptyLinesSayNothing)
{
    EXPECT_EQ(tap::capture::comment("one\r\ntwo"), "# one  two\n");
    EXPECT_THAT(tap::capture::read("vexlo capture 1\n\n# words\n"), IsEmpty());
}

TEST(Capture, TheLineEndsOfAMailAreTaken)
{
    EXPECT_THAT(tap::capture::read("vexlo capture 1\r\n0.000000 1.2.3.4:1 > 2 \"\"\r\n"),
                SizeIs(1));
    EXPECT_THAT(tap::capture::read("vexlo capture 1\n0.000000 1.2.3.4:1 > 2 \"\""), SizeIs(1));
}

TEST(Capture, ABadHeadIsToldByItsLine)
{
    EXPECT_EQ(complaint_about(""), "line 1: this is no capture file");
    EXPECT_EQ(complaint_about("hello\n"), "line 1: this is no capture file");
    EXPECT_EQ(complaint_about("vexlo capture 2\n"),
              "line 1: this version of the format is not known");
}

TEST(Capture, ABadLineIsToldWithItsReason)
{
    auto const complaint = complaint_about_line;
    EXPECT_EQ(complaint("0.000000 1.2.3.4:1 > 2 \"fine\""), "");
    for (auto const* time : {"", "x", "1", "1.5", "-1.000000", "1.0000000", "1234567890.000000"}) {
        EXPECT_EQ(complaint(std::string(time) + " 1.2.3.4:1 > 2 \"\""),
                  "the time is not in seconds with six decimals")
            << time;
    }
    for (auto const* sender : {"", "1.2.3.4", "1.2.3:1", "1.2.3.256:1", "a.b.c.d:1", "1.2.3.4.5:1",
                               "1.2.3.:1", "\x1b.2.3.4:1"}) {
        EXPECT_EQ(complaint("0.000000 " + std::string(sender) + " > 2 \"\""),
                  "the sender is not an address and a port")
            << sender;
    }
    EXPECT_EQ(complaint("0.000000"), "the sender is not an address and a port");
    EXPECT_EQ(complaint("0.000000 1.2.3.4:65536 > 2 \"\""), "a port is not a number up to 65535");
    EXPECT_EQ(complaint("0.000000 1.2.3.4:1 2 \"\""), "there is no > behind the sender");
    EXPECT_EQ(complaint("0.000000 1.2.3.4:1 > x \"\""), "a port is not a number up to 65535");
    for (auto const* bytes : {"", "\"", "hello", "\"hello", "hello\""}) {
        EXPECT_EQ(complaint("0.000000 1.2.3.4:1 > 2 " + std::string(bytes)),
                  "the bytes are not in quotes")
            << bytes;
    }
    EXPECT_EQ(complaint("0.000000 1.2.3.4:1 > 2 \"\\q\""),
              "the bytes are not escaped as they must be");
    EXPECT_EQ(complaint("0.000000 1.2.3.4:1 > 2 \"" + std::string(65'508, 'x') + "\""),
              "the bytes are more than a datagram can hold");
}

TEST(Escape, IsUndoneByteForByteAndNothingElseIsTaken)
{
    EXPECT_EQ(tap::escaped("a\\b\"c\x1b"), R"(a\\b\"c\x1b)");
    EXPECT_EQ(tap::unescaped(R"(a\\b\"c\x1b\r\n\t)"), "a\\b\"c\x1b\r\n\t");
    for (auto const* bad : {"\\", "\\x", "\\x1", "\\xG0", "\\xFF", "\\0", "\"", "\x1b", "\xE9"}) {
        EXPECT_EQ(tap::unescaped(bad), std::nullopt) << bad;
    }
}

} // namespace
