#pragma once

#include "controls/command.h"

#include <string>
#include <string_view>
#include <utility>

namespace controls {

/// A colour as red, green and blue, each 0 to 255.
struct Colour {
    int red = 0;
    int green = 0;
    int blue = 0;

    bool operator==(Colour const&) const = default;
};

/// The focus of one control: how often code has asked for it, and what the control does when it
/// comes.
class Focus {
public:
    /// Code gives the control the focus.
    void set()
    {
        ++requests_;
        got.run();
    }

    /// Counts the calls of set(), so that whoever shows the control can tell a new one.
    [[nodiscard]] unsigned requests() const { return requests_; }

    /// Run each time the control gets the focus, from code or by a person.
    Command got;

private:
    unsigned requests_ = 0;
};

/// A line of text on show.
class Label {
public:
    Label() = default;
    explicit Label(std::string_view caption) : caption_(caption) {}

    [[nodiscard]] std::string const& caption() const { return caption_; }

    void set_caption(std::string_view caption)
    {
        if (caption_ != caption) {
            caption_ = caption;
            changed.run();
        }
    }

    bool visible = true;
    std::string tool_tip;
    Command changed;
    Command clicked;
    /// Brings the label to the screen at once, before the routine that runs goes on.
    Command repaint;

private:
    std::string caption_;
};

/// A button. click() is the press itself, by a person or by a routine; a disabled button is not
/// asked for leave, since function keys press it too.
class Button {
public:
    Button() = default;
    explicit Button(std::string_view text) : caption(text) {}

    void click() const { clicked.run(); }

    std::string caption;
    std::string tool_tip;
    bool visible = true;
    bool enabled = true;
    Colour background{224, 224, 224};
    Colour text_colour;
    Command clicked;
    /// The pointer moves over the button.
    Command pointed;
};

/// A check box or flag: 0 or 1 (2, the greyed box, comes from hand-made files only). A change runs
/// `clicked`, whether code or a person makes it.
class CheckBox {
public:
    CheckBox() = default;
    explicit CheckBox(int value, std::string_view text = {}) : caption(text), value_(value) {}

    [[nodiscard]] int value() const { return value_; }
    [[nodiscard]] bool on() const { return value_ == 1; }

    void set(int value)
    {
        if (value_ != value) {
            value_ = value;
            clicked.run();
        }
    }

    std::string caption;
    std::string tool_tip;
    bool visible = true;
    bool enabled = true;
    Command clicked;

private:
    int value_ = 0;
};

/// A gauge from 0 to 100.
class ProgressBar {
public:
    [[nodiscard]] int value() const { return value_; }

    void set(int value)
    {
        if (value_ != value) {
            value_ = value;
            changed.run();
        }
    }

    Command changed;

private:
    int value_ = 0;
};

/// A strip of tabs; the first is number 0.
class Tabs {
public:
    [[nodiscard]] int tab() const { return tab_; }

    void choose(int tab)
    {
        if (tab_ != tab) {
            tab_ = tab;
            clicked.run();
        }
    }

    Command clicked;

private:
    int tab_ = 0;
};

/// A timer, disabled at first. Whoever gives the form its time (the desktop's event loop, the
/// simulated office) attaches `switched` and runs `tick` every `interval_ms` while it is enabled.
/// Enabling a timer that runs changes nothing.
class Timer {
public:
    explicit Timer(int interval) : interval_ms(interval) {}

    [[nodiscard]] bool enabled() const { return enabled_; }

    void enable() { set(true); }
    void disable() { set(false); }

    int const interval_ms;
    Command tick;
    Command switched;

private:
    void set(bool enabled)
    {
        if (std::exchange(enabled_, enabled) != enabled) {
            switched.run();
        }
    }

    bool enabled_ = false;
};

} // namespace controls
