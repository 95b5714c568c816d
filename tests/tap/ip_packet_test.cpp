#include "tap/ip_packet.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace std::string_literals;

/// A packet from port 4112 to port 4111, as the kernel hands it on; what it says of its lengths may
/// be a lie.
std::string packet(std::string const& bytes, int udp_length, int header_words = 5)
{
    auto const header = std::string(1, static_cast<char>(0x40 + header_words)) +
                        std::string(static_cast<std::size_t>(header_words * 4 - 1), '\0');
    auto const length =
        std::string{static_cast<char>(udp_length / 256), static_cast<char>(udp_length % 256)};
    return header + "\x10\x10\x10\x0f"s + length + "\0\0"s + bytes;
}

TEST(IpPacket, HoldsPortsAndBytes)
{
    auto const datagram = tap::datagram_in(packet("hello\0\xff"s, 15));

    ASSERT_TRUE(datagram);
    EXPECT_EQ(datagram->from_port, 4112);
    EXPECT_EQ(datagram->to_port, 4111);
    EXPECT_EQ(datagram->bytes, "hello\0\xff"s);
}

TEST(IpPacket, MayHaveALongerHeader)
{
    EXPECT_EQ(tap::datagram_in(packet("hello", 13, 6))->bytes, "hello");
    EXPECT_EQ(tap::datagram_in(packet("hello", 13, 15))->bytes, "hello");
}

TEST(IpPacket, WhatIsBehindTheDatagramIsNoneOfIt)
{
    EXPECT_EQ(tap::datagram_in(packet("hello and more", 13))->bytes, "hello");
    EXPECT_EQ(tap::datagram_in(packet("", 8))->bytes, "");
}

TEST(IpPacket, ThatHoldsLessThanItSaysHoldsNothing)
{
    EXPECT_FALSE(tap::datagram_in(packet("hello", 14)));
    EXPECT_FALSE(tap::datagram_in(packet("hello", 7)));
    EXPECT_FALSE(tap::datagram_in(packet("hello", 13, 4)));
    auto const whole = packet("hello", 13);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(tap::datagram_in(whole.substr(0, length))) << length;
    }
}

} // namespace
