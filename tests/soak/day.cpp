#include "tests/soak/day.h"

#include "tests/soak/company.h"
#include "tests/soak/habits.h"
#include "tests/soak/inspection.h"
#include "tests/soak/weather.h"

#include <algorithm>

namespace soak {

using namespace std::chrono_literals;

void Day::at_work()
{
    company_.pass_until(7, 30);
    come();
    work_until(10, 0);
    begin_weather(company_);
    work_until(12, 0);
    have_lunch();
    end_weather(company_);
    work_until(16, 0);
    have_tea();
    work_until(17, 0);
    go_home();
    at_home();
}

void Day::at_home()
{
    company_.pass_until(23, 0);
    talk_from_outside(company_);
    company_.pass_until(24, 0);
    for (Colleague& each : company_.colleagues) {
        inspect(each);
    }
    company_.close_the_books();
}

void Day::come()
{
    for (Colleague& each : company_.colleagues) {
        company_.pass(company_.up_to(8min));
        if (company_.happens(92)) { // The others are on holiday.
            come_back(each);
            each.come();
        }
    }
}

void Day::work_until(int hour, int minute)
{
    auto const is_over = [&] {
        auto const now = company_.clock.now();
        return now.hour > hour || (now.hour == hour && now.minute >= minute);
    };
    while (!is_over()) {
        step();
    }
}

void Day::step()
{
    if (!company_.happens(20)) { // Now and then somebody is quick.
        company_.pass(company_.up_to(2min));
    }
    if (company_.happens(5)) {
        talk_from_outside(company_);
    }
    auto& who = company_.one_of(company_.colleagues);
    if (!who.at_work) {
        return;
    }
    if (who.running()) {
        act(who);
    } else {
        who.come();
    }
}

void Day::have_lunch()
{
    for (Colleague& each : company_.colleagues) {
        if (each.running() && company_.happens(40)) {
            go_away(each);
        }
    }
    work_until(12, 45);
    for (Colleague& each : company_.colleagues) {
        come_back(each);
    }
}

/// The one moment at which everybody looks at the same.
void Day::have_tea()
{
    company_.calm();
    inspect_together(company_);
}

void Day::go_home()
{
    for (Colleague& each : company_.colleagues) {
        company_.pass(company_.up_to(6min));
        come_back(each);
        if (!each.running() || company_.happens(10)) {
            continue; // Some programs run all night.
        }
        if (company_.happens(5)) {
            each.crash();
        } else {
            each.go_home();
        }
    }
    for (Colleague& each : company_.colleagues) {
        each.at_work = false;
    }
}

} // namespace soak
