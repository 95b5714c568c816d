#pragma once

#include "platform/clock.h"
#include "platform/environment.h"
#include "platform/outside.h"
#include "platform/process.h"
#include "platform/screen.h"
#include "platform/sound.h"
#include "sim/journal.h"
#include "sim/scheduler.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// The small things that a program asks of its desktop, as plain as they can be.
namespace sim {

/// A wall clock that follows the virtual time.
class Clock : public platform::Clock {
public:
    explicit Clock(Scheduler const& scheduler) : scheduler_(scheduler) {}

    [[nodiscard]] text::LocalTime now() const override;
    /// Puts the clock to this time of this moment.
    void set(text::LocalTime time);

private:
    Scheduler const& scheduler_;
    Duration shift_{0}; ///< against an office that opens on 2026-11-15 at 15:15
};

class Environment : public platform::Environment {
public:
    [[nodiscard]] std::string value(std::string_view name) const override;
    [[nodiscard]] std::string own_value(std::string_view name) const override;

    std::map<std::string, std::string, std::less<>> variables; ///< of the process
    std::map<std::string, std::string, std::less<>> desktop;   ///< what stands in for them
};

class Process : public platform::Process {
public:
    Process(std::string folder, Journal& journal) : folder_(std::move(folder)), journal_(journal) {}

    [[nodiscard]] bool other_copy_runs() override { return other_copy; }
    [[nodiscard]] std::string command_line() const override { return arguments; }
    [[nodiscard]] std::string program_folder() const override { return folder_; }
    void store_setting(std::string_view section, std::string_view name,
                       std::string_view value) override;
    /// Throws Ended.
    [[noreturn]] void end(int status) override;

    bool other_copy = false;
    std::string arguments;
    std::map<std::string, std::string> settings; ///< "section/name" and value

private:
    std::string folder_;
    Journal& journal_;
};

class Screen : public platform::Screen {
public:
    [[nodiscard]] float width() const override { return wide; }
    [[nodiscard]] float height() const override { return high; }

    float wide = 28800; ///< 1920 pixels at 96 dpi, in twips
    float high = 16200; ///< 1080 pixels
};

/// What the program handed to other programs.
class Outside : public platform::Outside {
public:
    explicit Outside(Journal& journal) : journal_(journal) {}

    void open_text(std::string_view path) override;
    void open_folder(std::string_view path) override;
    void open_help() override { ++helps; }
    void open_web(std::string_view address) override;
    void copy(std::string_view text) override { clipboard = text; }
    void start(std::string_view path) override;

    std::vector<std::string> opened;    ///< texts and folders, by path
    std::vector<std::string> started;   ///< programs, by path
    std::vector<std::string> addresses; ///< of the web
    int helps = 0;
    std::string clipboard;
    bool refuses = false; ///< nothing is there that opens or starts anything

private:
    void require_somebody() const;

    Journal& journal_;
};

class Sound : public platform::Sound {
public:
    explicit Sound(Journal& journal) : journal_(journal) {}

    void play(std::string_view path) override;

    std::vector<std::string> played; ///< paths

private:
    Journal& journal_;
};

} // namespace sim
