#pragma once

#include "controls/basic.h"
#include "text/colouring.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace controls {

/// A key that a person releases: its code, and the mask of the keys held with it.
struct Key {
    static constexpr int enter = 13;
    static constexpr int f1 = 112;
    static constexpr int f12 = 123;
    static constexpr int ctrl = 2; ///< in the mask; Shift is 1, Alt is 4

    int code = 0;
    int mask = 0;
};

/// A box that a person types in. Line ends are CR LF; lengths and places count characters.
class TextBox {
public:
    TextBox() = default;
    explicit TextBox(std::string_view text) : text_(text) {}

    [[nodiscard]] std::string const& text() const { return text_; }
    [[nodiscard]] bool empty() const { return text_.empty(); }
    [[nodiscard]] std::size_t length() const { return text_.size(); }

    /// The whole text, from code or by a person. The caret goes to the start, as a new text has
    /// none.
    void set_text(std::string_view text)
    {
        if (text_ != text) {
            text_ = text;
            selection_start_ = selection_length_ = 0;
            changed.run();
        }
    }

    void cut_last_character()
    {
        set_text(std::string_view(text_).substr(0, text_.empty() ? 0 : text_.size() - 1));
    }

    [[nodiscard]] std::size_t selection_start() const { return selection_start_; }
    [[nodiscard]] std::size_t selection_length() const { return selection_length_; }

    void select(std::size_t start, std::size_t length)
    {
        selection_start_ = std::min(start, text_.size());
        selection_length_ = std::min(length, text_.size() - selection_start_);
    }

    void caret_to_end() { select(text_.size(), 0); }

    bool visible = true;
    bool enabled = true;
    int font_size = 10; ///< points
    std::string tool_tip;
    Colour background{255, 255, 255};
    Focus focus;
    Command changed;
    /// A person types a character; true swallows it.
    std::function<bool(int)> key_press;
    /// A person releases a key in the box.
    std::function<void(Key)> key_up;

private:
    std::string text_;
    std::size_t selection_start_ = 0;
    std::size_t selection_length_ = 0;
};

/// A text in colours: the default colour, and runs in others, in order and without overlap.
class RichText {
public:
    struct Run {
        std::size_t start = 0;
        std::size_t length = 0;
        Colour colour;

        bool operator==(Run const&) const = default;
    };

    [[nodiscard]] std::string const& text() const { return text_; }
    [[nodiscard]] bool empty() const { return text_.empty(); }

    /// A new text is all in the default colour.
    void set_text(std::string_view text)
    {
        if (text_ != text) {
            text_ = text;
            runs_.clear();
            selection_start_ = selection_length_ = 0;
            changed.run();
        }
    }

    void select(std::size_t start, std::size_t length)
    {
        selection_start_ = std::min(start, text_.size());
        selection_length_ = std::min(length, text_.size() - selection_start_);
    }

    [[nodiscard]] std::size_t selection_start() const { return selection_start_; }
    [[nodiscard]] std::size_t selection_length() const { return selection_length_; }
    [[nodiscard]] std::vector<Run> const& runs() const { return runs_; }

    /// Paints a stretch over whatever colour it has.
    void paint(Run run);
    /// Paints everything in one colour and the stretches, in order and without overlap, in
    /// another.
    void paint_over(Colour ground, std::vector<text::Span> const& stretches, Colour colour);

    bool visible = true;
    int font_size = 10; ///< points
    std::string tool_tip;
    Command changed;
    Command repaint;

private:
    std::string text_;
    std::vector<Run> runs_;
    std::size_t selection_start_ = 0;
    std::size_t selection_length_ = 0;
};

} // namespace controls
