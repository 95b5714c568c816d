#include "tests/soak/roster.h"
#include "tests/soak/year.h"

#include <charconv>
#include <chrono>
#include <exception>
#include <iostream>
#include <span>
#include <string_view>

/// A year of office days in virtual time:
///
///     vexlo_soak [--seed N] [--days N] [--peers N]
///
/// Ends with status 0 if nothing was found. What is found is told with the last things that
/// happened, and how to see it again.
namespace {

struct Wanted {
    std::uint64_t seed = 1;
    std::uint64_t days = 250;
    std::uint64_t peers = 16;
};

bool take(std::string_view name, std::string_view value, Wanted& wanted)
{
    auto* const number = name == "--seed"    ? &wanted.seed
                         : name == "--days"  ? &wanted.days
                         : name == "--peers" ? &wanted.peers
                                             : nullptr;
    if (number == nullptr) {
        return false;
    }
    auto const [end, error] = std::from_chars(value.data(), value.data() + value.size(), *number);
    return error == std::errc() && end == value.data() + value.size();
}

int run(Wanted const& wanted)
{
    auto const begin = std::chrono::steady_clock::now();
    soak::Company company(wanted.seed, static_cast<int>(wanted.peers));
    try {
        soak::work_for(company, static_cast<int>(wanted.days));
    } catch (std::exception const& found) {
        for (auto const& line : company.diary.last_lines()) {
            std::cerr << line << '\n';
        }
        std::cerr << company.stamp() << "  " << found.what() << "\nagain: vexlo_soak --seed "
                  << wanted.seed << " --days " << wanted.days << " --peers " << wanted.peers
                  << '\n';
        return 1;
    }
    std::chrono::duration<double> const took = std::chrono::steady_clock::now() - begin;
    std::cout << "seed " << wanted.seed << ": " << wanted.days << " days of " << wanted.peers
              << " people, " << soak::told(company) << ", " << took.count() << " s\n";
    return 0;
}

} // namespace

int main(int count, char** values)
{
    std::span const arguments(values, static_cast<std::size_t>(count));
    Wanted wanted;
    for (std::size_t place = 1; place < arguments.size(); place += 2) {
        if (place + 1 == arguments.size() ||
            !take(arguments[place], arguments[place + 1], wanted)) {
            std::cerr << "vexlo_soak [--seed N] [--days N] [--peers N]\n";
            return 2;
        }
    }
    if (wanted.peers < 4 || wanted.peers > soak::roster::most) {
        std::cerr << "4 to " << soak::roster::most << " people\n";
        return 2;
    }
    return run(wanted);
}
