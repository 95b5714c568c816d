#include "tests/soak/year.h"

#include "tests/soak/day.h"

namespace soak {

void work_for(Company& company, int days)
{
    constexpr int working_days = 5;
    for (int day = 0; day < days; ++day) {
        Day(company).at_work();
        if (day % working_days == working_days - 1) {
            Day(company).at_home();
            Day(company).at_home();
        }
    }
}

std::string told(Company const& company)
{
    return std::to_string(company.diary.acts()) + " acts, " + std::to_string(company.datagrams()) +
           " datagrams, " + std::to_string(company.office.scheduler.events()) + " events, digest " +
           std::to_string(company.diary.digest());
}

} // namespace soak
