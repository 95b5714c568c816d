#include "tests/soak/roster.h"

#include <array>
#include <cstddef>

namespace soak::roster {

namespace {

struct Born {
    std::string_view first, last;
};

constexpr std::array<Born, most> born{{
    {"ALICE", "MEYER"},  {"BOB", "KING"},      {"CARL", "DUNN"},   {"DORA", "FALK"},
    {"EMIL", "GRAU"},    {"FRIDA", "HOLM"},    {"GUSTAV", "IRIS"}, {"HANNA", "JUNG"},
    {"IVO", "KLEIN"},    {"JULIA", "LANG"},    {"KURT", "MOOR"},   {"LENA", "NEUMANN"},
    {"MAX", "OTT"},      {"NINA", "PFEIFFER"}, {"OTTO", "QUAST"},  {"PAULA", "REIS"},
    {"QUINTUS", "SAND"}, {"ROSA", "THAL"},     {"SIMON", "URBAN"}, {"TILDA", "VOSS"},
}};

Born const& born_as(int number)
{
    return born.at(static_cast<std::size_t>(number));
}

/// "1" for every n-th of them.
std::string every(int nth, int number)
{
    return number % nth == nth - 1 ? "1" : "0";
}

} // namespace

std::string name(int number)
{
    auto const& [first, last] = born_as(number);
    return std::string(first) + " " + std::string(last);
}

std::string other_name(int number)
{
    // No name ends in another one: a name finds every longer name that ends in it.
    return std::string(born_as(number).first) + " SCHMIDT" + std::to_string(number);
}

std::string room(int number)
{
    return "ROOM" + std::to_string(number + 10);
}

std::string_view account(int number)
{
    return born_as(number).first;
}

std::string identity(int number)
{
    return "[" + room(number) + "\\" + std::string(account(number)) + "]";
}

sim::Setup setup(int number, int people)
{
    return {.settings = {{"SHOWOWN", every(5, number)},
                         {"REPLYTOALL", every(4, number)},
                         {"ENTERSEND", every(3, number)},
                         {"RESETPORTS", every(7, number)},
                         {"MINIMIZEONSTART", every(6, number)},
                         {"STARTCLEARUSERCACHE", every(9, number)},
                         {"SHOWMEINLIST", number % 8 == 5 ? "0" : "1"},
                         {"AUTOCHECKUSERS", every(2, number)},
                         {"AUTORESPONSEALLOW", "1"},
                         {"AUTORESPONSEFORWARD", every(2, number)},
                         {"AUTORESPONSEMSG3", "Forward to: " + name((number + 1) % people)}},
            .command_line = number % 11 == 10 ? "/m" : ""};
}

std::string group_file(int number, int people)
{
    std::string file = "[Group01name  ]=" + std::string(group) + "\r\n";
    for (int next = 1; next < 4; ++next) {
        file += "[Group01member]=" + identity((number + next) % people) + "\r\n";
    }
    return file;
}

} // namespace soak::roster
