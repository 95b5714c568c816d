#include "sim/scripted_boxes.h"

namespace sim {

namespace {

class Open {
public:
    explicit Open(int& count) : count_(count) { ++count_; }
    ~Open() { --count_; }
    Open(Open const&) = delete;
    Open& operator=(Open const&) = delete;

private:
    int& count_;
};

} // namespace

ScriptedBoxes::ScriptedBoxes(Scheduler& scheduler, Life const& life, Journal& journal)
    : scheduler_(scheduler), life_(life), journal_(journal)
{
}

ScriptedBoxes::Reply& ScriptedBoxes::will_answer(platform::Answer answer)
{
    replies_.emplace_back().answer_ = answer;
    return replies_.back();
}

ScriptedBoxes::Reply& ScriptedBoxes::will_enter(std::string_view text)
{
    replies_.emplace_back().entered_ = text;
    return replies_.back();
}

template <typename Answer, typename Box>
Answer ScriptedBoxes::leave(Box const& box, Answer (platform::Boxes::*way)(Box const&))
{
    journal_.note("box " + box.title);
    Open const open(open_);
    auto const answer = (desk_->*way)(box);
    life_.require();
    return answer;
}

platform::Answer ScriptedBoxes::show(platform::MessageBox const& box)
{
    if (is_for_desk()) {
        return leave(box, &platform::Boxes::show);
    }
    Reply otherwise;
    otherwise.answer_ =
        box.buttons == platform::Buttons::ok ? platform::Answer::ok : platform::Answer::cancel;
    Shown const shown{.text = box.text,
                      .title = box.title,
                      .buttons = box.buttons,
                      .icon = box.icon,
                      .default_text = {},
                      .when = scheduler_.now()};
    return run(shown, std::move(otherwise)).answer_;
}

std::string ScriptedBoxes::ask(platform::InputBox const& box)
{
    if (is_for_desk()) {
        return leave(box, &platform::Boxes::ask);
    }
    Reply otherwise;
    otherwise.entered_ = box.default_text;
    Shown const shown{.text = box.prompt,
                      .title = box.title,
                      .buttons = {},
                      .icon = platform::Icon::none,
                      .default_text = box.default_text,
                      .when = scheduler_.now()};
    return run(shown, std::move(otherwise)).entered_;
}

std::string ScriptedBoxes::choose_file(platform::FileBox const& box)
{
    if (is_for_desk()) {
        return leave(box, &platform::Boxes::choose_file);
    }
    Shown const shown{.text = box.pattern_name,
                      .title = box.title,
                      .buttons = {},
                      .icon = platform::Icon::none,
                      .default_text = box.present,
                      .when = scheduler_.now()};
    return run(shown, {}).entered_;
}

ScriptedBoxes::Reply ScriptedBoxes::run(Shown const& box, Reply otherwise)
{
    journal_.note("box " + box.text);
    shown_.push_back(box);
    Reply reply = std::move(otherwise);
    if (!replies_.empty()) {
        reply = std::move(replies_.front());
        replies_.pop_front();
    } else if (!answers_all_) {
        throw UnexpectedBox("nobody foretold the box \"" + box.text + "\"");
    }
    Open const open(open_);
    if (reply.meanwhile_) {
        reply.meanwhile_();
    }
    auto const end = scheduler_.now() + reply.open_for_;
    while (life_.running() && scheduler_.step(end)) {
    }
    life_.require();
    scheduler_.run_until(end);
    return reply;
}

std::vector<std::string> ScriptedBoxes::texts() const
{
    std::vector<std::string> all;
    for (Shown const& box : shown_) {
        all.push_back(box.text);
    }
    return all;
}

} // namespace sim
