#pragma once

#include "demo/cast.h"
#include "demo/desk.h"
#include "demo/office_time.h"

#include "sim/office.h"

#include <QString>

#include <chrono>
#include <deque>
#include <functional>
#include <string>
#include <string_view>

namespace demo {

/// A virtual office, and the desks of those whose windows are seen.
class Stage {
public:
    /// Pictures of the windows go into this folder, where nobody sees them pass by; an empty one
    /// is for none.
    Stage(Pace pace, QString pictures);

    // Time.
    /// Lets the office go on.
    void pass(std::chrono::milliseconds duration);
    /// A moment to look, where somebody looks.
    void pause(std::chrono::milliseconds duration);

    // Telling.
    void open_scene(QString const& title);
    void tell(QString const& what);
    /// Tells what is so, or comes to be so within moments; raises NotAsTold where it does not.
    void comes_about(QString const& what, std::function<bool()> const& is_so);

    // People.
    /// At a host of its own, where the program has never run.
    sim::Peer& arrives(cast::Member const& member);
    /// The same, whose program has run before, and is started with these settings.
    sim::Peer& is_at_work(cast::Member const& member, sim::Setup const& setup = {});
    [[nodiscard]] sim::Peer& peer(cast::Member const& member);
    /// The same, where it may be that nobody of this name has come in yet: nullptr.
    [[nodiscard]] sim::Peer* find(cast::Member const& member);
    /// Puts the windows of a peer on the screen.
    Desk& show(sim::Peer& peer, Desk::Side side);
    [[nodiscard]] Desk& desk(cast::Member const& member);
    /// Whose window it is, or stands on; nullptr for none of the office.
    [[nodiscard]] Desk* desk_with(QWidget const& widget);

    // The letters of the office.
    [[nodiscard]] QString words(std::string_view bytes) const { return codec_.to_unicode(bytes); }
    [[nodiscard]] std::string bytes(QString const& words) const
    {
        return codec_.from_unicode(words);
    }

    /// Who hears what is told.
    std::function<void(QString const& title)> scene_opened = [](QString const&) {};
    std::function<void(QString const& line)> told = [](QString const&) {};

    sim::Office office;
    OfficeTime time;

private:
    void show_all();
    void set_clock(sim::Peer& peer);

    QString pictures_;
    qt::Codec codec_{1252};
    std::deque<Desk> desks_;
};

} // namespace demo
