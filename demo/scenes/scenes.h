#pragma once

#include "demo/stage.h"

/// The story of the virtual office, told of Alice's desk.
namespace demo::scenes {

void coming_in(Stage& stage);
void somebody_writes(Stage& stage);
void writing(Stage& stage);
void one_key(Stage& stage);
void to_everybody(Stage& stage);
void groups(Stage& stage);
void options(Stage& stage);
void away(Stage& stage);
void forwarding(Stage& stage);
void what_was_said(Stage& stage);
void coming_and_going(Stage& stage);
void into_the_background(Stage& stage);

} // namespace demo::scenes
