#pragma once

namespace soak {

class Colleague;

/// Has a person who is there do one of the things that people do in front of the program.
void act(Colleague& who);

// What people do with their messages.
void write_to_somebody(Colleague& who);
void write_to_several(Colleague& who);
void write_to_all(Colleague& who);
void write_to_the_group(Colleague& who);
void press_quick_button(Colleague& who);
void answer(Colleague& who);
void answer_by_button(Colleague& who);
void forward(Colleague& who);
void close_one(Colleague& who);
void close_all(Colleague& who);
void go_away(Colleague& who);
void come_back(Colleague& who);

// What they do with the program.
void find_others(Colleague& who);
void look_at_history(Colleague& who);
void clear_history(Colleague& who);
void look_at_log(Colleague& who);
void clear_log(Colleague& who);
void hide_main_window(Colleague& who);
void change_settings(Colleague& who);
void change_name(Colleague& who);
void clean_directory(Colleague& who);
void press_everything_in_vain(Colleague& who);

// What happens to it.
void restart(Colleague& who);
void crash_and_restart(Colleague& who);
void pull_cable(Colleague& who);
void change_port(Colleague& who);

} // namespace soak
