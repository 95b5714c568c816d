#include "network/endpoint.h"
#include "tests/unit/fakes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using network::Endpoint;
using network::state_name;
using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::Throws;
using text::Failure;
using Sent = unit::IdleSocket::Sent;

TEST(SocketState, HasTheNamesOfTheTitle)
{
    EXPECT_EQ(state_name(0), "Closed");
    EXPECT_EQ(state_name(1), "Listening");
    EXPECT_EQ(state_name(2), "Listening");
    EXPECT_EQ(state_name(3), "Connection pending");
    EXPECT_EQ(state_name(4), "Resolving host");
    EXPECT_EQ(state_name(5), "Host resolved");
    EXPECT_EQ(state_name(6), "Connecting");
    EXPECT_EQ(state_name(7), "Connected");
    EXPECT_EQ(state_name(8), "Server is disconnecting");
    EXPECT_EQ(state_name(9), "Error");
}

TEST(SocketState, OfTheSenderDiffersAtItsFirstNameAlone)
{
    EXPECT_EQ(network::sender_state_name(1), "Ready");
    for (int const state : {0, 2, 3, 4, 5, 6, 7, 8, 9, 10}) {
        EXPECT_EQ(network::sender_state_name(state), network::state_name(state)) << state;
    }
}

TEST(SocketState, HasNoNameBeyondThese)
{
    EXPECT_EQ(state_name(10), "");
    EXPECT_EQ(state_name(-1), "");
}

class AnEndpoint : public testing::Test {
protected:
    unit::IdleSocket socket;
    Endpoint endpoint{"DiscoveryPort1", socket};
};

TEST_F(AnEndpoint, SendsToItsRemoteHostAndPort)
{
    endpoint.RemoteHost = Endpoint::everybody;
    endpoint.RemotePort = 4111;

    endpoint.SendData("***[ROOM12\\ALICE]=ALICE");

    EXPECT_THAT(socket.sent,
                ElementsAre(Sent{"***[ROOM12\\ALICE]=ALICE", "255.255.255.255", 4111}));
}

TEST_F(AnEndpoint, IsBoundFromBindToClose)
{
    EXPECT_EQ(endpoint.State(), 0);
    endpoint.Bind(4112);
    EXPECT_EQ(endpoint.State(), 1);
    EXPECT_EQ(socket.bound_to, 4112);
    endpoint.Close();
    endpoint.Close();
    EXPECT_EQ(endpoint.State(), 0);
}

TEST_F(AnEndpoint, AFailureCarriesTheSocketsNameAndKeepsItsOwnTextAndNumber)
{
    socket.taken_port = 4112;
    socket.no_network = true;

    EXPECT_THAT(
        [this] { endpoint.Bind(4112); },
        Throws<Failure>(AllOf(Field(&Failure::text, "Address in use"), Field(&Failure::number, 98),
                              Field(&Failure::origin, "DiscoveryPort1"))));
    EXPECT_THAT([this] { endpoint.SendData("x"); },
                Throws<Failure>(AllOf(Field(&Failure::text, "No route to host."),
                                      Field(&Failure::number, 113),
                                      Field(&Failure::origin, "DiscoveryPort1"))));
}

TEST_F(AnEndpoint, TellsTheMachinesAddressAndName)
{
    EXPECT_EQ(endpoint.LocalIP(), "192.168.7.12");
    EXPECT_EQ(endpoint.LocalHostName(), "room12");
}

} // namespace
