#include "pair.h"
#include "texts.h"

#include "sim/office.h"

/// The colours of a conversation, against one case-blind scan of its text.
namespace bench {

namespace {

/// Two people who take turns.
std::string conversation_of(std::int64_t length)
{
    return repeated("Bob> So what do you say to that?\r\nALICE MEYER> I do not know yet.\r\n",
                    static_cast<std::size_t>(length));
}

void colour(benchmark::State& state, std::string_view sender, std::string_view conversation)
{
    sim::Office office;
    auto& peer = office.peer("ROOM12", "alice", "Alice Meyer");
    office.settle();
    auto& popup = peer.popup(0);
    popup.messagefrom.set_caption(sender);
    popup.message.set_text(conversation);
    for (auto _ : state) {
        popup.colourmessage.run();
        benchmark::DoNotOptimize(popup.message.runs());
    }
}

void colourmessage(benchmark::State& state)
{
    colour(state, "Bob", conversation_of(state.range(0)));
}

/// A peer's name that nearly stands at every place of its text.
void colour_hostile(benchmark::State& state)
{
    auto const length = static_cast<std::size_t>(state.range(0));
    auto const sender = repeated("a", length / 2) + "b";
    colour(state, sender, "ALICE MEYER> " + repeated("a", length));
}

void one_scan(benchmark::State& state)
{
    auto const conversation = conversation_of(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(plain_find(conversation, "a name that nobody has"));
    }
}

} // namespace

void measure_colouring()
{
    std::vector<std::int64_t> const sizes{1024, 10240, 61440};
    measure("colourmessage, a conversation", colourmessage, one_scan, sizes);
    measure("colourmessage, a name that nearly fits", colour_hostile, one_scan, sizes);
}

} // namespace bench
