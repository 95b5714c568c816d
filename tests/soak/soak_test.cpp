#include "tests/soak/year.h"

#include <gtest/gtest.h>

#include <exception>
#include <string>

namespace {

using soak::Company;

constexpr int people = 12;

/// The last things that happened, behind what a test has found.
std::string story(Company const& company)
{
    std::string lines;
    for (auto const& line : company.diary.last_lines()) {
        lines += line + "\n";
    }
    return lines;
}

void live(Company& company, int days)
{
    try {
        work_for(company, days);
    } catch (std::exception const& found) {
        ADD_FAILURE() << story(company) << company.stamp() << "  " << found.what();
    }
}

TEST(Soak, ThreeOfficeDaysLeaveNothingWrong)
{
    Company company(20'270'104, people);

    live(company, 3);

    EXPECT_GT(company.diary.acts(), 1000U);
    EXPECT_GT(company.datagrams(), 4'000U);
}

TEST(Soak, IsTheSameForTheSameSeed)
{
    constexpr int few = 6;
    Company first(7, few);
    Company second(7, few);
    Company other(8, few);
    for (auto* const company : {&first, &second, &other}) {
        live(*company, 1);
    }

    EXPECT_EQ(first.diary.digest(), second.diary.digest());
    EXPECT_NE(first.diary.digest(), other.diary.digest());
}

} // namespace
