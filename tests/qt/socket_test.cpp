#include "qt/desk_socket.h"

#include <QTest>
#include <gmock/gmock.h>

#include <cerrno>

namespace {

using qt::DeskSocket;
using testing::ElementsAre;
using testing::Pair;

/// Nothing of these tests leaves the machine.
constexpr auto here = "127.0.0.1";

TEST(Failures, OfAPortThatIsTakenHaveTheTextThatTheFlowsCompare)
{
    EXPECT_EQ(qt::failure_of(EADDRINUSE).text, "Address in use");
    EXPECT_EQ(qt::failure_of(EADDRINUSE).number, EADDRINUSE);
}

TEST(Failures, OfANetworkThatIsNotThereHaveTheTextThatTheFlowsCompare)
{
    for (int const error : {ENETUNREACH, EHOSTUNREACH, ENETDOWN, EADDRNOTAVAIL}) {
        EXPECT_EQ(qt::failure_of(error).text, "No route to host.") << error;
        EXPECT_EQ(qt::failure_of(error).number, error);
    }
}

TEST(Failures, OfAnyOtherKindHaveTheSystemsNumberAndWords)
{
    EXPECT_EQ(qt::failure_of(EACCES).text, "Permission denied");
    EXPECT_EQ(qt::failure_of(EMSGSIZE).text, "Message too long");
    EXPECT_EQ(qt::failure_of(EMSGSIZE).number, EMSGSIZE);
}

/// Number and text of what the step raises.
template <typename Step>
std::pair<int, std::string> failure_in(Step step)
{
    try {
        step();
    } catch (text::Failure const& failure) {
        return {failure.number, failure.text};
    }
    return {};
}

/// A listening socket at a port that was free a moment ago.
struct Socket : testing::Test {
    Socket()
    {
        for (port = 41110; port < 41210; ++port) {
            if (text::attempt([this] { listening.bind(port); })) {
                break;
            }
        }
        listening.arrived = [this](std::string datagram) { arrived.push_back(datagram); };
        sending.bind(0);
    }

    int port = 0;
    DeskSocket listening{DeskSocket::Role::listening};
    DeskSocket sending{DeskSocket::Role::sending};
    std::vector<std::string> arrived;
};

TEST_F(Socket, ASecondOneOnThePortIsRefused)
{
    DeskSocket second(DeskSocket::Role::listening);
    EXPECT_THAT(failure_in([&] { second.bind(port); }), Pair(EADDRINUSE, "Address in use"));
    EXPECT_EQ(second.state(), 0);

    listening.close();
    second.bind(port);
    EXPECT_EQ(second.state(), 1);
}

TEST_F(Socket, APortThatCannotBeIsRefused)
{
    EXPECT_THAT(failure_in([&] { sending.bind(65536); }), Pair(EINVAL, "Invalid argument"));
    EXPECT_THAT(failure_in([&] { sending.bind(-1); }), Pair(EINVAL, "Invalid argument"));
    EXPECT_EQ(sending.state(), 0);
}

TEST_F(Socket, AClosedOneSendsNothing)
{
    sending.close();
    sending.close();
    EXPECT_THAT(failure_in([&] { sending.send("a", here, port); }),
                Pair(ENOTCONN, "Transport endpoint is not connected"));
}

TEST_F(Socket, ADatagramThatIsTooLongIsRefusedWhole)
{
    EXPECT_THAT(failure_in([&] { sending.send(std::string(70000, 'x'), here, port); }),
                Pair(EMSGSIZE, "Message too long"));
    EXPECT_THAT(failure_in([&] { sending.send("a", here, 70000); }),
                Pair(EINVAL, "Invalid argument"));
}

TEST_F(Socket, DatagramsArriveWholeAndInOrder)
{
    sending.send(std::string("a\0b", 3), here, port);
    sending.send("", here, port);
    sending.send(std::string(60000, 'x'), here, port);
    EXPECT_TRUE(QTest::qWaitFor([this] { return arrived.size() == 3; }));
    EXPECT_THAT(arrived, ElementsAre(std::string("a\0b", 3), "", std::string(60000, 'x')));
}

TEST_F(Socket, ABurstOfAThousandIsKept)
{
    for (int number = 0; number < 1000; ++number) {
        sending.send(std::to_string(number), here, port);
    }
    ASSERT_TRUE(QTest::qWaitFor([this] { return arrived.size() == 1000; }));
    EXPECT_EQ(arrived.back(), "999");
}

TEST_F(Socket, ClosedInTheMidstOfABurstItTakesNoMore)
{
    listening.arrived = [this](std::string datagram) {
        arrived.push_back(datagram);
        listening.close();
    };
    for (int number = 0; number < 100; ++number) {
        sending.send(std::to_string(number), here, port);
    }
    QTest::qWait(50);
    EXPECT_LE(arrived.size(), 32U) << "but for what had been taken off the kernel's hands";
    EXPECT_EQ(listening.state(), 0);
}

TEST_F(Socket, FallenSilentItTellsOfNoMoreArrivals)
{
    listening.fall_silent();
    sending.send("a", here, port);
    QTest::qWait(50);
    EXPECT_THAT(arrived, testing::IsEmpty());
}

TEST_F(Socket, KnowsHowMuchTheKernelGrantedForDatagramsThatWait)
{
    DeskSocket usual(DeskSocket::Role::sending);
    usual.bind(0);
    EXPECT_GT(listening.granted_buffer(), 0);
    EXPECT_GE(listening.granted_buffer(), usual.granted_buffer()) << "at least what others have";

    listening.close();
    EXPECT_EQ(listening.granted_buffer(), 0);
}

} // namespace
