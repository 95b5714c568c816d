#include "pair.h"
#include "texts.h"

#include "network/directory.h"

/// Looking somebody up in the directory, against a case-blind scan of the same rows.
namespace bench {

namespace {

enum class Wanted { last, nobody };

std::string number_of(std::int64_t row)
{
    auto const digits = std::to_string(row);
    return std::string(5 - digits.size(), '0') + digits;
}

std::string identity_of(std::int64_t row)
{
    return "[ROOM" + number_of(row) + "\\USER" + number_of(row) + "]";
}

std::string name_of(std::int64_t row)
{
    return "SOMEBODY " + number_of(row);
}

std::vector<std::string> rows_of(std::int64_t count)
{
    std::vector<std::string> rows;
    for (std::int64_t row = 0; row < count; ++row) {
        rows.push_back(identity_of(row) + "=" + name_of(row));
    }
    return rows;
}

/// A row that is not there has the same length as one that is.
std::int64_t wanted_row(Wanted wanted, std::int64_t count)
{
    return wanted == Wanted::last ? count - 1 : 99999;
}

controls::ListBox directory_of(std::int64_t count, text::CharacterSet const& letters)
{
    controls::ListBox directory(letters);
    for (std::string const& row : rows_of(count)) {
        directory.add(row);
    }
    return directory;
}

template <Wanted wanted>
void lookupuser(benchmark::State& state)
{
    auto const letters = text::CharacterSet::western();
    auto const directory = directory_of(state.range(0), letters);
    auto const name = letters.proper(name_of(wanted_row(wanted, state.range(0))));
    for (auto _ : state) {
        benchmark::DoNotOptimize(network::lookupuser(name, directory, letters));
    }
}

template <Wanted wanted>
void sender_name(benchmark::State& state)
{
    auto const letters = text::CharacterSet::western();
    auto const directory = directory_of(state.range(0), letters);
    auto const sender = identity_of(wanted_row(wanted, state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(network::sender_name(sender, directory));
    }
}

/// A scan of the rows' ends, the result a text of its own.
template <Wanted wanted>
void scan_of_ends(benchmark::State& state)
{
    auto const rows = rows_of(state.range(0));
    auto const name =
        text::CharacterSet::western().proper(name_of(wanted_row(wanted, state.range(0))));
    for (auto _ : state) {
        std::string_view found = "[---]";
        for (std::string_view const row : rows) {
            if (row.size() >= name.size() &&
                plain_same(row.substr(row.size() - name.size()), name)) {
                found = row.substr(0, row.find('='));
                break;
            }
        }
        benchmark::DoNotOptimize(std::string(found));
    }
}

/// A scan for the identity anywhere in the rows.
template <Wanted wanted>
void scan_of_identities(benchmark::State& state)
{
    auto const rows = rows_of(state.range(0));
    auto const sender = identity_of(wanted_row(wanted, state.range(0)));
    for (auto _ : state) {
        std::string_view found = sender;
        for (std::string_view const row : rows) {
            if (plain_find(row, sender) != row.size()) {
                found = row.substr(row.find('=') + 1);
                break;
            }
        }
        benchmark::DoNotOptimize(std::string(found));
    }
}

} // namespace

void measure_lookups()
{
    std::vector<std::int64_t> const sizes{10, 1000, 10000};
    measure("lookupuser, the last row", lookupuser<Wanted::last>, scan_of_ends<Wanted::last>,
            sizes);
    measure("lookupuser, nobody", lookupuser<Wanted::nobody>, scan_of_ends<Wanted::nobody>, sizes);
    measure("sender, the last row", sender_name<Wanted::last>, scan_of_identities<Wanted::last>,
            sizes);
    measure("sender, nobody", sender_name<Wanted::nobody>, scan_of_identities<Wanted::nobody>,
            sizes);
}

} // namespace bench
