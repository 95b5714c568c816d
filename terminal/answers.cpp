#include "terminal/answers.h"

#include "terminal/exit_status.h"
#include "terminal/hearing.h"
#include "terminal/readable.h"

#include "messaging/queue_row.h"
#include "messaging/recipient_filter.h"
#include "network/directory.h"
#include "text/fields.h"

#include <string>
#include <variant>

namespace terminal {

namespace {

namespace wire = network::wire;

bool is_for_this_desk(wire::Message const& message, forms::FrmMain const& frmMain)
{
    return message.recipient == frmMain.user &&
           messaging::fate_of(message, {.user = frmMain.user}) == messaging::Fate::for_us;
}

/// The lines of a message, each readable.
QStringList lines_of(std::string_view body, qt::Codec const& codec)
{
    QStringList lines;
    text::for_each_line(body, [&](std::string_view line) { lines += readable(codec, line); });
    return lines;
}

void tell(wire::Message const& message, Desk const& desk, Printer const& printer)
{
    auto const& userlist = desk.folder.forms.frmMain.userlist;
    auto const name =
        readable(desk.codec, desk.letters.proper(network::sender_name(message.sender, userlist)));
    auto const lines = lines_of(message.body, desk.codec);
    // Set in, so that no line of an answer can be taken for one of ours.
    printer.tell(name + QStringLiteral(":\n  ") + lines.join(QStringLiteral("\n  ")),
                 {{QStringLiteral("answer"), lines.join(QLatin1Char('\n'))},
                  {QStringLiteral("name"), name},
                  {QStringLiteral("identity"), readable(desk.codec, message.sender)}});
}

} // namespace

int print_answers(Desk const& desk, Ear& ear, std::chrono::milliseconds time, int count,
                  Printer const& printer)
{
    int heard = 0;
    auto const enough = [&] { return heard == count; };
    hear(ear, {.time = time, .count = {}, .enough = enough}, [&](tap::Datagram const& datagram) {
        auto const row = messaging::read_row(datagram.bytes, desk.letters);
        auto const* const message = std::get_if<wire::Message>(&row);
        if (message != nullptr && is_for_this_desk(*message, desk.folder.forms.frmMain)) {
            tell(*message, desk, printer);
            ++heard;
        }
    });
    if (heard == 0) {
        Printer::complain(QStringLiteral("nobody has answered"));
        return heard_nothing;
    }
    return done;
}

} // namespace terminal
