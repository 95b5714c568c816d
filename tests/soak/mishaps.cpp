#include "tests/soak/company.h"
#include "tests/soak/habits.h"
#include "tests/soak/inspection.h"

/// What happens to the program.
namespace soak {

using namespace std::chrono_literals;

void restart(Colleague& who)
{
    who.go_home();
    who.company.pass(2s); // Two logs that are finished in one second are one file.
    who.come();
}

void crash_and_restart(Colleague& who)
{
    who.crash();
    who.company.pass(1min);
    who.come();
}

void pull_cable(Colleague& who)
{
    who.peer.unplug();
    write_to_all(who); // It is lost, and a box says why.
    who.company.pass(who.company.up_to(5min));
    inspect(who);
    who.peer.plug_in();
    if (!who.running()) {
        who.come();
    }
    who.company.pass(6s);
}

void change_port(Colleague& who)
{
    auto const change_to = [&](std::string_view port) {
        who.in_settings([&](forms::Settings& settings) {
            who.peer.boxes.will_enter(port);
            who.peer.person.click(settings.window, settings.Command2);
            who.peer.person.click(settings.window, settings.cancelbtn);
        });
    };
    who.elsewhere = true;
    change_to("4211");
    who.company.pass(who.company.up_to(2min));
    change_to("4111");
    who.elsewhere = false;
}

} // namespace soak
