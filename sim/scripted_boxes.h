#pragma once

#include "platform/boxes.h"
#include "sim/journal.h"
#include "sim/life.h"
#include "sim/scheduler.h"

#include <deque>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace sim {

/// A box came up that nobody had foretold.
class UnexpectedBox : public std::logic_error {
public:
    using std::logic_error::logic_error;
};

/// Modal boxes with a person in front of them whose answers are known beforehand. While a box is
/// open the office goes on behind it.
class ScriptedBoxes : public platform::Boxes {
public:
    /// What the person in front of a box does.
    class Reply {
    public:
        /// How long the box stays open; the office runs on meanwhile.
        Reply& after(Duration time)
        {
            open_for_ = time;
            return *this;
        }
        /// What happens while the box is open, before that time begins.
        Reply& meanwhile(std::function<void()> action)
        {
            meanwhile_ = std::move(action);
            return *this;
        }

    private:
        friend class ScriptedBoxes;
        platform::Answer answer_ = platform::Answer::ok;
        std::string entered_;
        Duration open_for_{0};
        std::function<void()> meanwhile_;
    };

    struct Shown {
        std::string text;
        std::string title;
        std::optional<platform::Buttons> buttons; ///< empty for an input box
        platform::Icon icon = platform::Icon::none;
        std::string default_text; ///< of an input box
        Duration when{0};
    };

    ScriptedBoxes(Scheduler& scheduler, Life const& life, Journal& journal);

    /// The next box that comes up is answered so. Several answers stand in line.
    Reply& will_answer(platform::Answer answer);
    /// The next input box is answered by this text.
    Reply& will_enter(std::string_view text);
    /// Every box beyond the foretold ones is answered by its default at once.
    void answer_all() { answers_all_ = true; }
    /// Every box beyond the foretold ones is answered by a person in front of it. `desk` must
    /// outlive the boxes.
    void hand_to(platform::Boxes& desk) { desk_ = &desk; }

    platform::Answer show(platform::MessageBox const& box) override;
    std::string ask(platform::InputBox const& box) override;
    std::string choose_file(platform::FileBox const& box) override;

    /// Every box there was, in order.
    [[nodiscard]] std::vector<Shown> const& shown() const { return shown_; }
    /// The texts of all boxes there were.
    [[nodiscard]] std::vector<std::string> texts() const;
    /// How many boxes are open at this moment.
    [[nodiscard]] int open() const { return open_; }
    /// How many answers still wait for their box.
    [[nodiscard]] std::size_t waiting() const { return replies_.size(); }

private:
    Reply run(Shown const& box, Reply otherwise);
    [[nodiscard]] bool is_for_desk() const { return desk_ != nullptr && replies_.empty(); }
    /// Leaves a box to the desk, whose own loop runs the office meanwhile.
    template <typename Answer, typename Box>
    Answer leave(Box const& box, Answer (platform::Boxes::*way)(Box const&));

    Scheduler& scheduler_;
    Life const& life_;
    Journal& journal_;
    std::deque<Reply> replies_;
    std::vector<Shown> shown_;
    int open_ = 0;
    bool answers_all_ = false;
    platform::Boxes* desk_ = nullptr;
};

} // namespace sim
