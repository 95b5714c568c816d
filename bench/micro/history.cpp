#include "records/history.h"

#include "disk.h"
#include "pair.h"
#include "texts.h"

#include "records/history_file.h"
#include "sim/office.h"

/// The history file, against one write and one read of the same bytes.
namespace bench {

namespace {

constexpr int rows = 100;

controls::Table::Row row_of(std::int64_t characters)
{
    return {"20261115151802",
            "11/15/26 03:18 pm",
            "From",
            "Bob",
            "BOB>",
            repeated("words and words ", static_cast<std::size_t>(characters)),
            "[ROOM12\\ALICE]",
            "",
            "",
            "Bob Msg 03:18 pm"};
}

/// A history of a hundred rows, on disk and in the window.
class Kept {
public:
    explicit Kept(std::int64_t characters)
    {
        for (int number = 0; number < rows; ++number) {
            forms.historyfrm.ListView1.add(row_of(characters));
        }
        history.save();
    }

    [[nodiscard]] std::string content() const { return disk.files.read(path); }

    Disk disk;
    std::string path = disk.path("hist.dat");
    text::CharacterSet letters = text::CharacterSet::western();
    forms::Forms forms{letters};
    sim::Scheduler scheduler;
    sim::Life life;
    sim::Journal journal;
    sim::ScriptedBoxes boxes{scheduler, life, journal};
    sim::Screen screen;
    records::History history{
        {.forms = forms, .boxes = boxes, .files = disk.files, .screen = screen}, path};
};

void save(benchmark::State& state)
{
    Kept kept(state.range(0));
    for (auto _ : state) {
        kept.history.save();
    }
}

void one_write(benchmark::State& state)
{
    Kept const kept(state.range(0));
    auto const content = kept.content();
    auto const path = kept.disk.path("plain");
    Disk::plain_write(path, content);
    for (auto _ : state) {
        Disk::plain_write(path, content);
    }
}

void load(benchmark::State& state)
{
    Kept kept(state.range(0));
    for (auto _ : state) {
        kept.history.load();
    }
}

void one_read(benchmark::State& state)
{
    Kept const kept(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(Disk::plain_read(kept.path));
    }
}

} // namespace

void measure_history()
{
    std::vector<std::int64_t> const sizes{970, 60000};
    measure("history, save 100 rows", save, one_write, sizes);
    measure("history, load 100 rows", load, one_read, sizes);
}

} // namespace bench
