#pragma once
// Into the program and out of it by keystrokes, as every played piece begins and ends.
#include "samples/stage.h"

namespace samples {

/** From the start to the main window; pictureName: of the sign-in, empty for none. */
void signIn(Stage& stage, const QString& pictureName = {});
/** Closes the program; throws when it does not end well. */
void leave(Stage& stage);

}  // namespace samples
