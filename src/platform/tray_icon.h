#pragma once

#include <functional>
#include <string_view>

namespace platform {

/// The program's icon in the notification area.
class TrayIcon {
public:
    enum class Image { normal, waiting, away };

    virtual ~TrayIcon() = default;

    /// Adds the icon; one that is there already is added anew.
    virtual void add(Image image, std::string_view tip) = 0;
    virtual void set_image(Image image) = 0;
    virtual void set_tip(std::string_view tip) = 0;
    virtual void remove() = 0;

    // What a person does to it, and the desktop.
    std::function<void()> left_pressed;
    std::function<void()> double_clicked;
    std::function<void()> right_released;
    /// The desktop has started its panel again, without the icon.
    std::function<void()> panel_restarted;
};

} // namespace platform
