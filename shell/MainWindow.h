#pragma once

#include "platform/Types.h"

// The main window's message handler: routes each message to its handler, then to the default one, whose result it
// returns.
LRESULT MainWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
