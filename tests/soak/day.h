#pragma once

namespace soak {

class Company;

/// A day of the office, from midnight to midnight.
class Day {
public:
    explicit Day(Company& of) : company_(of) {}

    void at_work();
    void at_home();

private:
    void come();
    void work_until(int hour, int minute);
    void have_lunch();
    void have_tea();
    void go_home();
    void step();

    Company& company_;
};

} // namespace soak
