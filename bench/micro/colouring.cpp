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

void colourmessage(benchmark::State& state)
{
    sim::Office office;
    auto& peer = office.peer("ROOM12", "alice", "Alice Meyer");
    office.settle();
    auto& popup = peer.popup(0);
    popup.messagefrom.set_caption("Bob");
    popup.message.set_text(conversation_of(state.range(0)));
    for (auto _ : state) {
        popup.colourmessage.run();
        benchmark::DoNotOptimize(popup.message.runs());
    }
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
    measure("colourmessage, a conversation", colourmessage, one_scan, {1024, 10240, 61440});
}

} // namespace bench
