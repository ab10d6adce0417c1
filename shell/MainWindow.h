#pragma once

#include "platform/Types.h"

// The client area: the canvas on the left, commands and status panel in the strip on its right.
constexpr int ClientWidth = 1000;
constexpr int ClientHeight = 600;

// The main window's message handler: routes each message to its handler, then to the default one, whose result it
// returns.
LRESULT MainWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
