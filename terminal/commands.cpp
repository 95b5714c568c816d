#include "terminal/commands.h"

#include "terminal/doctor.h"

namespace terminal {

std::vector<Command> const& commands()
{
    static std::vector<Command> const all{
        {QStringLiteral("doctor"),
         QStringLiteral("looks at this desk: what is wrong, what mends it"), doctor},
    };
    return all;
}

} // namespace terminal
