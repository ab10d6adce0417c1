#pragma once

#include "platform/Types.h"

// Registers the window class, loads the background, creates, places and shows the main window. False when the window
// could not be created. A missing background is no failure.
bool StartUp(HINSTANCE instance, int showState);
