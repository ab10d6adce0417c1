#pragma once

#include "platform/Window.h"

#include <string_view>

// What a desktop reports to the program. Input is queued; what the window system sends (a click on a button, the close
// box, a moved window) reaches the window procedure before the call returns.
namespace platform {

// A mouse message of a top-level window: client coordinates, MK_ flags. Outside the client area and over a button it is
// dropped unless the mouse is captured. False: the program does not hear of it.
bool PostMouse(Window& window, UINT message, POINT at, WPARAM keys);
void PostKeyDown(Window& window, int virtualKey);

// A push button of a window or dialog was pressed, or a check box clicked (which has toggled `checked` already).
void ButtonClicked(Window& button);
void CloseBoxClicked(Window& window);
// The user moved a top-level window or dialog; `x` and `y` are where its client area now lies on the display.
void WindowMoved(Window& window, int x, int y);
// Escape (2) or Enter (1) in a dialog.
void DialogKey(Window& dialog, int command);

// The user changed a control. Texts are code page 950. Typing into a drop-down's field drops its selection.
void EditTyped(Window& control, std::string_view text);
void ItemSelected(Window& dropDown, int index);

} // namespace platform
