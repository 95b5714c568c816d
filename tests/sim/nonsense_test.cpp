#include "bad_segment.h"

namespace {

using namespace flows;
using namespace std::chrono_literals;
using sim::Chance;
using sim::Office;
using sim::Peer;
using testing::IsEmpty;

TEST(Nonsense, AnyNonsenseIsTakenAndCostsItsTickOnly)
{
    auto const office = open_office(1, {}, 2);
    office->settle();
    Chance chance(11);
    int const rows = 500;
    for (int number = 0; number < rows; ++number) {
        std::string bytes(chance.below(300), '\0');
        for (char& byte : bytes) {
            byte = static_cast<char>(chance.below(256));
        }
        office->segment.inject(bytes);
    }
    auto const begin = office->scheduler.now();

    EXPECT_TRUE(office->settle());

    EXPECT_LE(office->scheduler.now() - begin, (rows + 1) * tick);
    for (Peer& peer : office->peers()) {
        EXPECT_TRUE(peer.running());
        EXPECT_THAT(peer.frmMain().cue, IsEmpty());
    }
}

TEST(Nonsense, NonsenseThatLooksLikeDatagramsIsSurvived)
{
    constexpr std::string_view letters = "*-]=[>\\ AB\r\n";
    auto const office = open_office(1, {}, 2);
    office->settle();
    Chance chance(12);
    for (int number = 0; number < 500; ++number) {
        std::string bytes(chance.happens(0.5) ? "**" : "");
        for (std::uint64_t left = chance.below(40); left > 0; --left) {
            bytes += letters[chance.below(letters.size())];
        }
        if (bytes.find('=') == std::string::npos) {
            bytes += '='; // A marker without one would block the queue, which is as told.
        }
        office->segment.inject(bytes);
        office->run_for(tick);
    }

    EXPECT_TRUE(office->settle());

    for (Peer& peer : office->peers()) {
        EXPECT_TRUE(peer.running()) << peer.report();
    }
}

TEST(Nonsense, ManySeedsOfChaosEndNobody)
{
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        auto const office = open_office(
            seed, {.loss = 0.3, .duplication = 0.3, .reordering = 0.5, .delay = 300ms}, 5);
        office->settle();
        talk(*office);
        for (Peer& peer : office->peers()) {
            EXPECT_TRUE(peer.running()) << seed;
            EXPECT_THAT(peer.frmMain().cue, IsEmpty()) << seed;
            EXPECT_LE(peer.frmMain().userlist.count(), 5) << seed;
        }
    }
}

} // namespace
