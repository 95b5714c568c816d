#include "tests/tap/datagrams.h"

#include "fuzz/pieces.h"
#include "sim/chance.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>

namespace datagrams {

namespace {

constexpr std::array<std::string_view, 24> words{
    "***",
    "**-",
    "-**",
    "---",
    "=",
    "]",
    "[",
    "\\",
    "> ",
    ":RE:",
    "[ALL]",
    "[---]",
    "[ROOM12\\ALICE]",
    "[ROOM07\\BOB]",
    "ALICE MEYER",
    "BOB",
    "[room12\\alice]",
    "\r\n",
    "\xE4\xDF",
    ",",
    "MEYER",
    "ROOM07",
    "\"",
    "7",
};

std::string mutation_of(std::string text, Datagrams const& seeds, sim::Chance& chance)
{
    auto const place = [&] { return static_cast<std::size_t>(chance.below(text.size() + 1)); };
    switch (chance.below(7)) {
    case 0:
        return text.insert(place(), words.at(chance.below(words.size())));
    case 1:
        return text.erase(place(), 1 + chance.below(5));
    case 2:
        return text.insert(place(), 1, static_cast<char>(chance.below(256)));
    case 3:
        return text.substr(0, place());
    case 4:
        return text.substr(place());
    case 5: // Two halves of two datagrams.
        return text.substr(0, place()) + seeds.at(chance.below(seeds.size())).substr(0, 40);
    default:
        std::ranges::transform(text, text.begin(), [](char letter) {
            return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
        });
        return text;
    }
}

std::string content_of(std::filesystem::path const& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::filesystem::path> files_of(std::string_view target)
{
    std::filesystem::path const corpus = VEXLO_PROJECT_FOLDER "/fuzz/corpus";
    std::vector<std::filesystem::path> all;
    for (auto const& entry : std::filesystem::directory_iterator(corpus / target)) {
        all.push_back(entry.path());
    }
    std::ranges::sort(all);
    return all;
}

/// Of oneself, of the known, of newcomers, under new and odd names.
Datagrams presence()
{
    return {
        "***[ROOM12\\ALICE]=ALICE MEYER",
        "**-[ROOM12\\ALICE]=ALICE MEYER",
        "***[ROOM07\\BOB]=BOB",
        "***[ROOM07\\BOB]=BOB",
        "**-[ROOM33\\CARL]=Carl Dunn",
        "**-[ROOM33\\CARL]=CARL DUNN",
        "***[ROOM55\\DORA]=Dora",
        "***[ROOM55\\DORA]=Dora",
        "**-[ROOM66\\EVE]=EVE=STONE",
        "**-[ROOM66\\EVE]=EVE=STONE",
        "***[ROOM07\\BOB]=ROBERT",
        "**-[ROOM07\\BOB]=ROBERT",
        "***OOM07\\BOB=SHORT",
        "***=NOBODY",
        "***=",
        "**-[ROOM77\\SEVEN]=7",
        "**-[ROOM77\\SEVEN]=7",
        "-**[ROOM77\\SEVEN]=7",
        "-**[ROOM07\\BOB]=ROBERT",
        "-**[ROOM07\\BOB]=SOMEBODY ELSE",
        "-**[ROOM99\\NOBODY]=NOBODY",
        "-**=BOB",
        "**-[ROOM12\\ALICE]=ALICE M",
        "**-[ROOM88\\TWIN]=ALICE MEYER",
        "**-[ROOM88\\TWIN]=ALICE MEYER",
        "***[ALL]=ALL",
    };
}

/// For us, to all, for others, from oneself, odd ones.
Datagrams messages()
{
    using std::string_literals::operator""s;
    return {
        "[ROOM07\\BOB][ROOM12\\ALICE]BOB> Lunch?",
        "[ROOM07\\BOB][ALL]BOB> (To All) Lunch!",
        "[ROOM07\\BOB][ROOM33\\CARL]BOB> Lunch?",
        "[ROOM07\\BOB][---]BOB> Lunch?",
        "[ROOM12\\ALICE][ALL]ALICE MEYER> (To All) Hello",
        "[ROOM12\\ALICE][ROOM12\\ALICE]ALICE MEYER> Note",
        "[ROOM12\\ALICE][ROOM07\\BOB]ALICE MEYER> Hello",
        "[ROOM07\\BOB][room12\\alice]BOB> small letters",
        "[ROOM07\\BOB][ROOM12\\ALICE]:RE: BOB> marked",
        "[ROOM07\\BOB][ROOM12\\ALICE]",
        "[ROOM07\\BOB][ALL]",
        "[ROOM99\\STRANGER][ROOM12\\ALICE]STRANGER> Hello\r\nWorld",
        "ab][ROOM12\\ALICE]x",
        "ab]cd]ef",
        "][ROOM12\\ALICE]nobody's",
        "][ALL]nobody's",
        "[ROOM07\\BOB][ROOM12\\ALICE]\0\x1b[31m\x07\xFF"s,
        "[ROOM07\\BOB][ROOM12\\ALICE]" + std::string(60'000, 'x'),
    };
}

Datagrams dropped_unread()
{
    return {
        "", " ", "  ", "---[ROOM07\\BOB]=BOB", "---[ROOM07\\BOB]=B]OB", "one]", "abc", "**", "\r\n",
    };
}

Datagrams blocking()
{
    return {
        "***",
        "***ABC",
        "**-[ROOM07\\BOB]",
        "-**][ROOM12\\ALICE]hi",
    };
}

} // namespace

Datagrams hand_picked()
{
    Datagrams all;
    for (auto const& some : {presence(), messages(), dropped_unread(), blocking()}) {
        all.insert(all.end(), some.begin(), some.end());
    }
    return all;
}

Datagrams of_the_corpora()
{
    Datagrams all;
    for (auto const& path : files_of("fuzz_wire")) {
        all.push_back(content_of(path));
    }
    for (auto const& path : files_of("fuzz_datagram")) {
        auto const input = content_of(path);
        for (fuzz::Pieces pieces(std::string_view(input).substr(input.empty() ? 0 : 1));
             !pieces.empty();) {
            auto const piece = pieces.next();
            all.push_back(piece.substr(piece.empty() ? 0 : 1)); // Its first byte is an order.
        }
    }
    return all;
}

Datagrams mutated(Datagrams const& seeds, std::size_t count, std::uint64_t seed)
{
    sim::Chance chance(seed);
    Datagrams all;
    while (all.size() < count) {
        auto text = seeds.at(chance.below(seeds.size())).substr(0, 2000);
        for (auto steps = chance.below(4); steps > 0; --steps) {
            text = mutation_of(text, seeds, chance);
        }
        all.push_back(text);
    }
    return all;
}

} // namespace datagrams
