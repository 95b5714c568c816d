#include "terminal/commands.h"

#include "terminal/doctor.h"
#include "terminal/listen.h"
#include "terminal/record.h"
#include "terminal/replay.h"
#include "terminal/send.h"
#include "terminal/who.h"

namespace terminal {

std::vector<Command> const& commands()
{
    static std::vector<Command> const all{
        {QStringLiteral("send"), QStringLiteral("sends a message to a user, a group or everybody"),
         send},
        {QStringLiteral("who"), QStringLiteral("asks who is there, and lists who answers"), who},
        {QStringLiteral("listen"),
         QStringLiteral("tells every datagram, and what a program does with it"), listen},
        {QStringLiteral("record"), QStringLiteral("keeps every datagram in a capture file"),
         record},
        {QStringLiteral("replay"),
         QStringLiteral("tells what a program would have shown of a capture"), replay},
        {QStringLiteral("doctor"),
         QStringLiteral("looks at this desk: what is wrong, what mends it"), doctor},
    };
    return all;
}

} // namespace terminal
