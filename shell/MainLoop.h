#pragma once

#include "platform/Types.h"

// Runs the editor from start-up to its end. The exit status is the code of the quit request that ended it, 0 otherwise.
// A ShellContext exists already.
int RunEditor(HINSTANCE instance, int showState);

// Takes one message and dispatches it, or, when none is waiting, presents a frame and pauses. False when the message
// ends the loop; a quit request's code is then in `exitStatus`.
bool TurnMainLoop(int& exitStatus);
