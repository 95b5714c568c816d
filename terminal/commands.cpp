#include "terminal/commands.h"

namespace terminal {

std::vector<Command> const& commands()
{
    static std::vector<Command> const all{};
    return all;
}

} // namespace terminal
