#pragma once

#include <string>

namespace platform {

enum class Buttons { ok, yes_no, yes_no_cancel };
enum class Answer { ok, yes, no, cancel };
enum class Icon { none, question };

struct MessageBox {
    std::string text;
    std::string title = "Vexlo Instant Messaging";
    Buttons buttons = Buttons::ok;
    Icon icon = Icon::none;
};

struct InputBox {
    std::string prompt;
    std::string title;
    std::string default_text;
};

/// A question for a file that is there.
struct FileBox {
    std::string title;
    std::string pattern; ///< of the names on offer first: "*.wav"
    std::string pattern_name;
    std::string present; ///< full path of the present choice
};

/// Modal boxes. Each call returns when a person has answered; timers and sockets go on behind the
/// box.
class Boxes {
public:
    virtual ~Boxes() = default;

    virtual Answer show(MessageBox const& box) = 0;
    /// The text that was entered; empty when it was left empty or cancelled.
    virtual std::string ask(InputBox const& box) = 0;
    /// The full path that was chosen; empty when cancelled.
    virtual std::string choose_file(FileBox const& box) = 0;
};

} // namespace platform
