#include "terminal/doctor.h"

#include "tap/finding.h"
#include "terminal/desk.h"
#include "terminal/desk_firewall.h"
#include "terminal/desk_folder.h"
#include "terminal/desk_network.h"
#include "terminal/desk_ports.h"
#include "terminal/desk_session.h"
#include "terminal/exit_status.h"
#include "terminal/options.h"
#include "terminal/privileged.h"

#include "network/identity.h"
#include "text/failure.h"

#include <QDir>

#include <utility>

namespace terminal {

namespace {

using tap::Finding;
using tap::Findings;

struct Face {
    char const* mark;
    char const* word;
};

Face face_of(Finding::Health health)
{
    switch (health) {
    case Finding::Health::well:
        return {"ok", "well"};
    case Finding::Health::warning:
        return {"warning", "warning"};
    case Finding::Health::wrong:
        return {"WRONG", "wrong"};
    case Finding::Health::unknown:
        break;
    }
    return {"?", "unknown"};
}

/// On one line: programs and folders have whatever names people give them.
QString line_of(std::string const& words)
{
    return QString::fromStdString(words).replace(QLatin1Char('\n'), QLatin1String("\\n"));
}

void tell(Printer const& printer, Finding const& finding)
{
    constexpr int mark_width = 9;
    constexpr int check_width = 16;
    auto const face = face_of(finding.health);
    auto const check = QString::fromStdString(finding.check);
    auto const text = line_of(finding.text);
    auto const remedy = line_of(finding.remedy);
    auto words = QString::fromLatin1(face.mark).leftJustified(mark_width) +
                 check.leftJustified(check_width) + text;
    if (!remedy.isEmpty()) {
        words += QLatin1Char('\n') + QString(mark_width, QLatin1Char(' ')) + QStringLiteral("-> ") +
                 remedy;
    }
    printer.tell(words, {{QStringLiteral("check"), check},
                         {QStringLiteral("health"), QString::fromLatin1(face.word)},
                         {QStringLiteral("text"), text},
                         {QStringLiteral("remedy"), remedy}});
}

tap::Name name_of(Desk const& desk)
{
    auto const& environment = desk.environment;
    auto const in_words = [&](std::string_view bytes) {
        return desk.codec.to_unicode(bytes).toStdString();
    };
    return {.computer = in_words(environment.value("computername")),
            .user = in_words(environment.value("username")),
            .display = in_words(desk.folder.forms.frmMain.friendlyname)};
}

class Examination {
public:
    Examination(Desk const& desk, QString const& as_root)
        : desk_(desk), as_root_(as_root.toStdString()), frmMain_(desk.folder.forms.frmMain),
          port_(frmMain_.udplistenport),
          program_(QDir(desk.program_folder).filePath(QStringLiteral("vexloim")))
    {
    }

    /// In the order in which a colleague would ask.
    Findings run()
    {
        findings_ = tap::check_ports(look_at_port(port_, program_),
                                     look_at_port(frmMain_.udpsendport, program_));
        look_at_network();
        add(tap::check_buffer(try_buffer()));
        add(tap::check_tray(look_at_tray()));
        add(tap::check_sound(look_at_sound(desk_, frmMain_)));
        add(tap::check_session(
            look_at_session(desk_, desk_.folder.forms.settings.autostartup.on(), program_)));
        add(tap::check_folder(look_at_folder(desk_.program_folder)));
        add(tap::check_name(name_of(desk_)));
        return std::move(findings_);
    }

private:
    void look_at_network()
    {
        auto const interfaces = look_at_interfaces();
        auto const interface = tap::check_interfaces(interfaces);
        auto const echo = try_echo(port_);
        auto const firewall = tap::check_firewall(look_at_firewall(port_, echo, as_root_), port_);
        add(interface);
        add(tap::check_route(interfaces, look_at_way_out(interfaces)));
        add(tap::check_echo(echo, interface, firewall));
        add(firewall);
    }

    void add(Finding finding) { findings_.push_back(std::move(finding)); }

    Desk const& desk_;
    std::string as_root_;
    forms::FrmMain const& frmMain_;
    int port_;
    QString program_;
    Findings findings_;
};

/// What can be said where not even the program folder can be read.
Findings without_folder(QString const& folder, text::Failure const& failure)
{
    auto finding = tap::check_folder(look_at_folder(folder));
    if (finding.health == Finding::Health::well) {
        finding = {"program folder", Finding::Health::wrong, failure.text};
    }
    return {finding};
}

Findings examined(Options const& options, QStringList const& arguments)
{
    try {
        Desk const desk(options);
        auto const as_root = privileged(desk, QStringLiteral("doctor"), arguments);
        return Examination(desk, as_root).run();
    } catch (text::Failure const& failure) {
        return without_folder(program_folder_of(options), failure);
    }
}

} // namespace

int doctor(QStringList const& arguments)
{
    Options options(QStringLiteral("doctor"),
                    QStringLiteral("Looks at this desk: what is wrong, and what mends it."));
    options.take(arguments);
    auto const printer = options.printer();
    auto const findings = examined(options, arguments);
    for (Finding const& finding : findings) {
        tell(printer, finding);
    }
    return tap::anything_wrong(findings) ? failed : done;
}

} // namespace terminal
