#include "tests/soak/habits.h"

#include "tests/soak/company.h"
#include "tests/soak/inspection.h"

#include <array>
#include <string_view>

namespace soak {

namespace {

struct Habit {
    int weight; ///< of a thousand
    void (*doing)(Colleague&);
    std::string_view words;
};

constexpr std::array habits{
    Habit{250, write_to_somebody, "writes to somebody"},
    Habit{40, write_to_several, "writes to several"},
    Habit{25, write_to_all, "writes to all"},
    Habit{25, write_to_the_group, "writes to the group"},
    Habit{40, press_quick_button, "presses a quick button"},
    Habit{220, answer, "answers"},
    Habit{60, answer_by_button, "answers by a button"},
    Habit{60, forward, "forwards"},
    Habit{110, close_one, "closes a popup"},
    Habit{30, close_all, "closes all popups"},
    Habit{20, find_others, "looks for other users"},
    Habit{30, look_at_history, "looks at the history"},
    Habit{1, clear_history, "clears the history"},
    Habit{20, look_at_log, "looks at the log"},
    Habit{3, clear_log, "saves and clears the log"},
    Habit{20, hide_main_window, "hides the main window"},
    Habit{15, change_settings, "changes a setting"},
    Habit{3, change_name, "changes the name"},
    Habit{2, clean_directory, "cleans the directory"},
    Habit{10, press_everything_in_vain, "presses what does nothing now"},
    Habit{5, restart, "wants to start anew"},
    Habit{4, crash_and_restart, "has no luck"},
    Habit{4, pull_cable, "pulls the cable"},
    Habit{3, change_port, "changes a port"},
};

constexpr int all_weights = [] {
    int sum = 0;
    for (Habit const& habit : habits) {
        sum += habit.weight;
    }
    return sum;
}();
static_assert(all_weights == 1000);

Habit const& any_habit(sim::Chance& chance)
{
    auto number = static_cast<int>(chance.below(all_weights));
    for (Habit const& habit : habits) {
        number -= habit.weight;
        if (number < 0) {
            return habit;
        }
    }
    return habits.front();
}

} // namespace

void act(Colleague& who)
{
    if (who.main().away.on() && who.company.happens(90)) {
        return; // Nobody is there.
    }
    if (who.turns_to_the_program()) {
        auto const& habit = any_habit(who.company.chance);
        who.note(habit.words);
        try {
            habit.doing(who);
        } catch (sim::Impossible const&) {
            if (who.running()) {
                throw;
            }
            // The program has ended under the person's hands; the inspection tells whether it may.
        }
        inspect(who);
    }
}

} // namespace soak
