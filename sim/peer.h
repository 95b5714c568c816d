#pragma once

#include "core/program.h"
#include "sim/backlog.h"
#include "sim/desktop.h"
#include "sim/journal.h"
#include "sim/life.h"
#include "sim/memory_files.h"
#include "sim/person.h"
#include "sim/scheduler.h"
#include "sim/scripted_boxes.h"
#include "sim/segment.h"
#include "sim/setup.h"
#include "sim/socket.h"
#include "sim/surroundings.h"
#include "sim/timer_driver.h"
#include "text/character_set.h"

#include <cstddef>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

/// One host of the office: its desktop, its disk, the person in front of it, and the program, which
/// may be ended and started again on the same disk.
class Peer {
public:
    Peer(Scheduler& scheduler, Segment& segment, std::string_view name, std::string_view user);
    Peer(Peer const&) = delete;
    Peer& operator=(Peer const&) = delete;

    /// Lays the files of `setup` on the disk, with `name` as the name in the settings.
    void prepare(std::string_view name, Setup const& setup = {});

    /// A new process. One that runs must have ended before.
    void start();
    /// The process is gone at once: nothing is written, nobody is told.
    void crash();
    void restart();

    [[nodiscard]] bool running() const { return life.running(); }
    /// The exit status of the last run; empty while it runs or before the first.
    [[nodiscard]] std::optional<int> status() const { return life.status(); }
    /// The text of the error report that ended the last run; empty when there was none.
    [[nodiscard]] std::string const& report() const { return life.report(); }

    /// The program of the present run, or of the last one when it has ended. What is attached to
    /// its forms before start() sees the start.
    [[nodiscard]] core::Program& program() { return *program_; }
    [[nodiscard]] forms::Forms& forms() { return program_->forms; }
    [[nodiscard]] forms::FrmMain& frmMain() { return forms().frmMain; }
    [[nodiscard]] forms::Settings& settings() { return forms().settings; }
    [[nodiscard]] forms::Popup& popup(std::size_t slot) { return forms().popup.at(slot); }
    /// The rows of the run's log.
    [[nodiscard]] std::vector<std::string> log() { return forms().log.lstMessages.rows(); }
    [[nodiscard]] controls::Table& history() { return forms().historyfrm.ListView1; }

    /// Runs something in the program, as an event of the desktop would.
    void enter(Life::Action const& action) { life.enter(action); }

    /// Rows of its queue that the program itself holds at most, 30 or more. What arrives beyond
    /// them waits as numbers of the segment's record, which a crowd shares, and takes its place
    /// behind each tick. The program does the same at the same time; only `cuetotal` tells less
    /// than queued(), and the record must not be forgotten meanwhile.
    std::size_t most_rows = std::numeric_limits<std::size_t>::max();
    /// Rows that wait, wherever.
    [[nodiscard]] std::size_t queued() { return frmMain().cue.size() + backlog_.size(); }

    void unplug() { host.link = false; }
    void plug_in() { host.link = true; }

    /// What the status line read each time it was brought to the screen at once.
    std::vector<std::string> status_repaints;
    int splash_repaints = 0;

    Segment::Host& host;
    Journal journal;
    Life life;
    MemoryFiles files;
    ScriptedBoxes boxes;
    Clock clock;
    Environment environment;
    Process process;
    Screen screen;
    Sound sound;
    Processes processes;
    SessionEntries session_entries;
    TrayIcon tray_icon;
    Web web;
    Outside outside;
    Socket listening;
    Socket sending;
    Person person;

private:
    void load_program();
    [[nodiscard]] bool hold_back(std::size_t number);
    void take_up();

    Scheduler& scheduler_;
    Segment& segment_;
    Backlog backlog_;
    text::CharacterSet letters_ = text::CharacterSet::western();
    std::unique_ptr<core::Program> program_;
    std::vector<std::unique_ptr<TimerDriver>> timers_;
    bool fresh_ = false;
};

} // namespace sim
