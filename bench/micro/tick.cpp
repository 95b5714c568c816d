#include "pair.h"
#include "texts.h"

#include "sim/office.h"

#include <array>
#include <deque>

/// One tick of the queue, against taking the same row apart.
namespace bench {

namespace {

constexpr int rows_at_a_time = 32;
constexpr std::string_view head_of_presence = "**-[ROOM07\\BOB]=";
constexpr std::string_view head_of_message = "[ROOM07\\BOB][ROOM33\\CARL]BOB> ";
constexpr std::string_view head_of_delivery = "[ROOM07\\BOB][ROOM12\\ALICE]BOB> ";

enum class Kind { presence, message, delivery, nonsense };

/// The shortest row that is still one of its kind where `size` is less than that.
std::string row_of(Kind kind, std::size_t size)
{
    switch (kind) {
    case Kind::presence:
        return std::string(head_of_presence) + repeated("BOB THE SECOND ", size);
    case Kind::message:
        return std::string(head_of_message) + repeated("words and words ", size);
    case Kind::delivery:
        return std::string(head_of_delivery) + repeated("words and words ", size);
    case Kind::nonsense:
        break;
    }
    return repeated("foreign words ", std::max<std::size_t>(1, size));
}

std::string row_of_length(Kind kind, std::int64_t length)
{
    auto const shortest = row_of(kind, 0).size();
    auto const wanted = static_cast<std::size_t>(length);
    return row_of(kind, wanted > shortest ? wanted - shortest : 0);
}

/// A program that knows the row's sender, by the name in the row where it holds one.
class Desk {
public:
    explicit Desk(std::string const& row)
        : peer_(office_.peer(
              "ROOM12", "alice", "Alice",
              {.settings = {{"PLAYSOUND", "0"}},
               .users = {"[ROOM12\\ALICE]=ALICE",
                         row.starts_with("**-") ? row.substr(3) : "[ROOM07\\BOB]=BOB"}}))
    {
        office_.settle();
        // The mirror of the log is measured on its own, with a real disk.
        peer_.frmMain().cleanlog.attach({});
    }

    forms::FrmMain& frmMain() { return peer_.frmMain(); }
    void forget_log() { peer_.forms().log.lstMessages.clear(); }

private:
    sim::Office office_;
    sim::Peer& peer_;
};

template <Kind kind>
void program(benchmark::State& state)
{
    auto const row = row_of_length(kind, state.range(0));
    Desk desk(row);
    auto& frmMain = desk.frmMain();
    while (state.KeepRunningBatch(rows_at_a_time)) {
        state.PauseTiming();
        desk.forget_log();
        for (int number = 0; number < rows_at_a_time; ++number) {
            frmMain.cue.push_back(row);
        }
        state.ResumeTiming();
        for (int number = 0; number < rows_at_a_time; ++number) {
            frmMain.Timer3.tick.run();
        }
    }
}

/// The row's three parts, each a text of its own; names in upper case, as they are compared.
template <Kind kind>
std::array<std::string, 3> split(std::string_view row)
{
    if constexpr (kind == Kind::presence) {
        auto const separator = std::min(row.find('='), row.size() - 1);
        std::array parts{std::string(row.substr(0, 3)), std::string(row.substr(3, separator - 3)),
                         std::string(row.substr(separator + 1))};
        for (std::string& part : parts) {
            std::ranges::transform(part, part.begin(), plain_upper);
        }
        return parts;
    }
    auto const first = std::min(row.find(']'), row.size() - 1);
    auto const second = std::min(row.find(']', first + 1), row.size() - 1);
    return {std::string(row.substr(0, first + 1)),
            std::string(row.substr(first + 1, second - first)),
            std::string(row.substr(second + 1))};
}

template <Kind kind>
void floor(benchmark::State& state)
{
    auto const row = row_of_length(kind, state.range(0));
    std::deque<std::string> rows;
    while (state.KeepRunningBatch(rows_at_a_time)) {
        state.PauseTiming();
        for (int number = 0; number < rows_at_a_time; ++number) {
            rows.push_back(row);
        }
        state.ResumeTiming();
        for (int number = 0; number < rows_at_a_time; ++number) {
            benchmark::DoNotOptimize(split<kind>(rows.front()));
            rows.pop_front();
        }
    }
}

} // namespace

void measure_ticks()
{
    std::vector<std::int64_t> const sizes{1, 200, 65507};
    measure("tick, presence row", program<Kind::presence>, floor<Kind::presence>, sizes);
    measure("tick, message to somebody else", program<Kind::message>, floor<Kind::message>, sizes);
    measure("tick, message to us", program<Kind::delivery>, floor<Kind::delivery>, sizes);
    measure("tick, foreign nonsense", program<Kind::nonsense>, floor<Kind::nonsense>, sizes);
}

} // namespace bench
