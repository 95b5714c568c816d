#include "sim/peer.h"

#include <stdexcept>

namespace sim {

namespace {

std::string folder_of(std::string_view user)
{
    return "/home/" + std::string(user) + "/vexlo";
}

} // namespace

Peer::Peer(Scheduler& scheduler, Segment& segment, std::string_view name, std::string_view user)
    : host(segment.add_host(name)), files(folder_of(user), journal),
      boxes(scheduler, life, journal), clock(scheduler), process(folder_of(user), journal),
      sound(journal), web(files, journal), outside(journal),
      listening(segment, host, life, journal), sending(segment, host, life, journal), person(*this),
      scheduler_(scheduler), segment_(segment)
{
    environment.variables["computername"] = name;
    environment.variables["username"] = user;
    files.put("vexlo.wav", "RIFF");
    life.ended = [this] {
        listening.close();
        sending.close();
        backlog_.clear();
    };
    listening.held_back = [this](std::size_t number) { return hold_back(number); };
    load_program();
}

void Peer::prepare(std::string_view name, Setup const& setup)
{
    files.put("settings.txt", settings_file(name, setup.settings));
    if (!setup.users.empty()) {
        files.put("users.txt", lines(setup.users));
    }
    process.arguments = setup.command_line;
}

void Peer::load_program()
{
    timers_.clear();
    program_ =
        std::make_unique<core::Program>(platform::Platform{.boxes = boxes,
                                                           .clock = clock,
                                                           .environment = environment,
                                                           .files = files,
                                                           .outside = outside,
                                                           .process = process,
                                                           .processes = processes,
                                                           .screen = screen,
                                                           .session_entries = session_entries,
                                                           .sound = sound,
                                                           .tray_icon = tray_icon,
                                                           .web = web,
                                                           .listening = listening,
                                                           .sending = sending},
                                        letters_);
    for (auto* const timer : {&frmMain().Timer1, &frmMain().Timer2, &frmMain().Timer3}) {
        timers_.push_back(std::make_unique<TimerDriver>(scheduler_, life, *timer));
    }
    frmMain().Timer3.tick.attach([this, tick = frmMain().Timer3.tick] {
        tick.run();
        take_up();
    });
    frmMain().statustext.repaint.attach(
        [this] { status_repaints.push_back(frmMain().statustext.caption()); });
    forms().loading.window.repaint.attach([this] { ++splash_repaints; });
    fresh_ = true;
}

bool Peer::hold_back(std::size_t number)
{
    // While the timer stands, the arrival itself may have to start it.
    bool const later = frmMain().cue.size() >= most_rows && frmMain().Timer3.enabled();
    if (later) {
        backlog_.add(number);
    }
    return later;
}

void Peer::take_up()
{
    while (!backlog_.empty() && frmMain().cue.size() < most_rows) {
        listening.arrived(segment_.bytes_of(backlog_.take()));
    }
}

void Peer::start()
{
    if (life.running() || life.inside()) {
        throw std::logic_error(host.name + ": the program runs already");
    }
    if (!fresh_) {
        load_program();
    }
    fresh_ = false;
    life.begin();
    life.enter([this] { program_->start(); });
}

void Peer::crash()
{
    constexpr int killed = 137;
    life.end(killed);
}

void Peer::restart()
{
    crash();
    start();
}

} // namespace sim
