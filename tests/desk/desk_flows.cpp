#include "tests/desk/desk_flows.h"

#include "tests/sim/opening.h"

#include <utility>

namespace desk {

Desk::Desk(sim::Setup setup)
{
    setup.users = flows::known_users;
    alice.prepare("Alice Meyer", setup);
    bob.prepare("Bob", {.users = flows::known_users});
    carl.prepare("Carl Dunn", {.users = flows::known_users});
}

void Desk::open()
{
    flows::open_office(office, moment);
}

void Desk::restart_alice()
{
    alice.person.leave();
    alice.start();
    office.settle();
}

void Desk::while_open(controls::Window& window, std::function<void()> action)
{
    window.wait_until_hidden.attach([this, &window, action = std::move(action)] {
        action();
        alice.life.require();
        EXPECT_FALSE(window.visible()) << window.caption << " stays open for ever";
        window.hide();
    });
}

void Desk::in_settings(std::function<void()> action)
{
    constexpr std::size_t change_settings = 0;
    while_open(alice.settings().window, std::move(action));
    alice.person.choose(alice.forms().menuform.toolsmenu, change_settings);
}

} // namespace desk
