#include "terminal/replay.h"

#include "tap/capture.h"
#include "terminal/desk.h"
#include "terminal/exit_status.h"
#include "terminal/eyes.h"
#include "terminal/hearing.h"
#include "terminal/onto_segment.h"
#include "terminal/readable.h"

#include "core/settings_store.h"
#include "sim/minutes.h"
#include "sim/replay.h"
#include "text/failure.h"

#include <QFile>

namespace terminal {

namespace {

using Capture = std::vector<tap::Datagram>;

constexpr double second = 1e6;

/// The capture, for the port of this office. Raises a Failure.
Capture read_capture(QString const& path, int port)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw text::Failure((path + QStringLiteral(": ") + file.errorString()).toStdString(), 0,
                            "capture");
    }
    auto capture = tap::capture::read(file.readAll().toStdString());
    for (auto& each : capture) {
        each.to_port = port;
    }
    return capture;
}

/// The host that an identity names: what stands around its first backslash. Raises WrongUsage.
sim::Peer& host_of(sim::Office& office, std::string_view identity)
{
    auto const split = identity.find('\\');
    if (split == identity.npos || !identity.ends_with(']')) {
        throw WrongUsage{QStringLiteral("an identity reads [COMPUTER\\USER]")};
    }
    auto const user = identity.substr(split + 1);
    return office.host(identity.substr(1, split - 1), user.substr(0, user.size() - 1));
}

/// A program in front of which nobody sits, with the options of the folder and the name and the
/// directory of the view.
sim::Peer& started(sim::Office& office, Desk& desk, tap::View const& view)
{
    auto& peer = host_of(office, view.user);
    auto& forms = desk.folder.forms;
    forms.frmMain.friendlyname = view.friendlyname;
    core::Paths const paths(peer.process.program_folder());
    core::SettingsStore(forms, peer.files, paths).save();
    peer.files.put("users.txt", sim::lines(view.userlist));
    peer.boxes.answer_all();
    peer.start();
    office.settle();
    if (view.away) {
        peer.enter([&] {
            peer.settings().autorespond.set_text(view.autorespond);
            peer.frmMain().away.set(1);
            peer.frmMain().away.clicked.run();
        });
    }
    return peer;
}

void tell(Printer const& printer, sim::Minutes::Entry const& entry, qt::Codec const& codec)
{
    constexpr int what_width = 7;
    auto const at = static_cast<double>(entry.when.count()) / second;
    auto const what = QString::fromLatin1(entry.what.data(), static_cast<int>(entry.what.size()));
    printer.tell(QString::number(at, 'f', 3) + QLatin1Char(' ') + what.leftJustified(what_width) +
                     readable(codec, entry.text),
                 {{QStringLiteral("at"), at},
                  {QStringLiteral("what"), what},
                  {QStringLiteral("text"), codec.to_unicode(entry.text)}});
}

void play(Capture const& capture, Desk& desk, tap::View const& view, Printer const& printer)
{
    using namespace std::chrono_literals;
    constexpr sim::Duration tick = 120ms;
    sim::Office office;
    auto& peer = started(office, desk, view);
    auto const begin = office.scheduler.now();
    auto const at_begin = [&](sim::Duration moment) { return moment - begin; };
    sim::Minutes minutes(office, peer, [&](sim::Minutes::Entry entry) {
        entry.when = at_begin(entry.when);
        tell(printer, entry, desk.codec);
    });
    auto const last = sim::replay(office, capture);
    minutes.run(last, last + 1min + 2 * tick * capture.size());
    auto const& queue = peer.frmMain().cue;
    if (peer.running() && !queue.empty()) {
        tell(printer,
             {.when = at_begin(office.scheduler.now()), .what = "queue", .text = queue.front()},
             desk.codec);
        Printer::complain(QStringLiteral("still waiting: ") + datagrams(queue.size()));
    }
    Printer::complain(QStringLiteral("replayed ") + datagrams(capture.size()) +
                      QStringLiteral(" to ") + desk.codec.to_unicode(view.user));
}

int play_onto_segment(Capture const& capture, int port, Printer const& printer)
{
    Printer::complain(QStringLiteral("WARNING: everybody on this segment gets %1, "
                                     "under the names of those who once sent them")
                          .arg(datagrams(capture.size())));
    int const sent = put_onto_segment(capture, port);
    printer.tell(QStringLiteral("put %1 onto the segment").arg(datagrams(sent)),
                 {{QStringLiteral("sent"), sent}});
    return done;
}

} // namespace

int replay(QStringList const& arguments)
{
    auto const onto_segment = QStringLiteral("onto-segment");
    Options options(
        QStringLiteral("replay"),
        QStringLiteral("Tells what a program would have shown and sent, had it heard this "
                       "capture,\non no network."),
        QStringLiteral("FILE"));
    add_eyes(options);
    options.add_switch(onto_segment,
                       QStringLiteral("puts it onto the real segment instead: everybody gets it"));
    options.take(arguments);
    auto const path = capture_path(options);
    Desk desk(options);
    int const port = desk.folder.forms.frmMain.udplistenport;
    auto const capture = read_capture(path, port);
    if (options.has(onto_segment)) {
        return play_onto_segment(capture, port, options.printer());
    }
    auto const view = eyes_of(options, desk);
    if (!view) {
        return nobody;
    }
    play(capture, desk, *view, options.printer());
    return done;
}

} // namespace terminal
