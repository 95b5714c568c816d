#include "terminal/desk_firewall.h"

#include "terminal/asked.h"

#include <QFile>

#include <unistd.h>

namespace terminal {

namespace {

/// The program's output, if it ended well.
std::optional<std::string> output_of(QString const& program, QStringList const& arguments)
{
    auto const answer = ask(program, arguments);
    return answer && answer->status == 0 ? std::optional(answer->text.toStdString()) : std::nullopt;
}

bool ufw_is_enabled()
{
    QFile file(QStringLiteral("/etc/ufw/ufw.conf"));
    return file.open(QIODevice::ReadOnly) && file.readAll().contains("\nENABLED=yes");
}

void look_at_firewalld(tap::Firewall& firewall, int port)
{
    auto const program = QStringLiteral("firewall-cmd");
    auto const state = ask(program, {QStringLiteral("--state")});
    firewall.firewalld_runs = state && state->status == 0;
    if (!firewall.firewalld_runs) {
        return;
    }
    auto const answer = ask(program, {QStringLiteral("--query-port=%1/udp").arg(port)});
    if (answer && (answer->text.startsWith(QStringLiteral("yes")) ||
                   answer->text.startsWith(QStringLiteral("no")))) {
        firewall.firewalld_lets_in = answer->status == 0;
    }
}

} // namespace

tap::Firewall look_at_firewall(int port, tap::Echo const& echo, std::string const& as_root)
{
    tap::Firewall firewall{
        .privileged = geteuid() == 0, .as_root = as_root, .ufw_enabled = ufw_is_enabled()};
    if (echo.state == tap::Echo::State::heard || echo.state == tap::Echo::State::not_heard) {
        firewall.echo = echo.state == tap::Echo::State::heard;
    }
    if (firewall.ufw_enabled) {
        firewall.ufw = output_of(QStringLiteral("ufw"), {QStringLiteral("status")});
    }
    look_at_firewalld(firewall, port);
    firewall.rules =
        output_of(QStringLiteral("nft"), {QStringLiteral("list"), QStringLiteral("ruleset")});
    return firewall;
}

} // namespace terminal
