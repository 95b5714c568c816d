#pragma once

#include "forms/forms.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/environment.h"
#include "platform/files.h"
#include "platform/outside.h"
#include "popups/pool.h"

#include <string>
#include <string_view>

namespace popups {

/// What one message window does: shows a conversation, takes a reply, answers, forwards, saves,
/// closes.
class Conversation {
public:
    /// A window of the pool gives its slot back; the recall window has none, and keeps its message.
    enum class Kind { pool, recall };

    struct Uses {
        forms::Forms& forms;
        Pool& pool;
        platform::Boxes& boxes;
        platform::Clock const& clock;
        platform::Environment const& environment;
        platform::Files& files;
        platform::Outside& outside;
    };

    Conversation(forms::Popup& popup, Kind kind, Uses uses);
    Conversation(Conversation const&) = delete;
    Conversation& operator=(Conversation const&) = delete;

    /// Sends the reply with its quote. Where the network refuses, the window stays as it is.
    void send();
    /// Closes the window.
    void close();
    /// Moves the message into the compose box of the main window.
    void forward();
    /// Writes message and reply into a text file of the user's and opens it.
    void save();
    /// Paints the reader's own turns black and all else red.
    void colour();

private:
    void attach_window();
    void attach_reply();
    void activated();
    void reply_changed();
    void key_up(controls::Key key);
    void quick_answer(std::size_t number);
    void stack(controls::Window::Stacking place);
    void cut_reply();
    [[nodiscard]] std::string quote() const;
    void give_back_slot();
    [[nodiscard]] std::string saved_text(std::string_view path) const;

    forms::Popup& popup_;
    Kind kind_;
    Uses uses_;
};

} // namespace popups
