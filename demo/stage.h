#pragma once

#include "qt/codec.h"
#include "qt/shell.h"
#include "qt/units.h"
#include "sim/office.h"

#include <QString>

#include <chrono>
#include <map>
#include <memory>
#include <string_view>

namespace demo {

/// The real windows on a simulated office: what people do goes through keyboard and mouse events,
/// and every window can be photographed.
class Stage {
public:
    /// How the office's time goes by: as fast as it can, or as a person sees it.
    enum class Pace { at_once, as_seen };

    Stage(Pace pace, QString pictures);

    /// Puts the windows of a peer on the screen, the main window at this corner.
    void show(sim::Peer& peer, QPoint corner);

    /// Lets the office go on.
    void pass(std::chrono::milliseconds time);

    // A person at a peer's windows.
    void pick(sim::Peer& peer, std::string_view name);
    void type(sim::Peer& peer, QString const& window, QString const& box, QString const& text);
    void press(sim::Peer& peer, QString const& window, QString const& button);

    /// Leaves a picture of a window in the folder, and returns its file name.
    QString picture(sim::Peer& peer, QString const& window, QString const& name);

    sim::Office office;

private:
    [[nodiscard]] QWidget& window(sim::Peer& peer, QString const& name);
    template <typename Widget>
    [[nodiscard]] Widget& control(sim::Peer& peer, QString const& window_name, QString const& name);
    void show_all();

    Pace pace_;
    QString pictures_;
    qt::Codec codec_;
    qt::Units units_;
    std::map<sim::Peer*, std::unique_ptr<qt::Shell>> shells_;
};

} // namespace demo
