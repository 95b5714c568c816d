#include "demo/tray.h"

#include <utility>

namespace demo {

Tray::Tray(sim::Peer& peer, qt::Codec const& codec) : peer_(peer), icon_(codec)
{
    auto& wanted = peer_.tray_icon;
    icon_.left_pressed = [this, &wanted] { peer_.enter(wanted.left_pressed); };
    icon_.double_clicked = [this, &wanted] { peer_.enter(wanted.double_clicked); };
    icon_.right_released = [this, &wanted] { peer_.enter(wanted.right_released); };
    icon_.panel_restarted = [this, &wanted] { peer_.enter(wanted.panel_restarted); };
}

void Tray::show()
{
    auto const& wanted = peer_.tray_icon;
    if (std::exchange(image_, wanted.image) != wanted.image) {
        icon_.set_image(wanted.image);
    }
    if (std::exchange(tip_, wanted.tip) != wanted.tip) {
        icon_.set_tip(wanted.tip);
    }
    if (std::exchange(shown_, wanted.shown) == wanted.shown) {
        return;
    }
    if (wanted.shown) {
        icon_.add(wanted.image, wanted.tip);
    } else {
        icon_.remove();
    }
}

} // namespace demo
