#pragma once

#include "platform/Types.h"

// The dialog of an animation: its number of frames and the time per frame. It edits the object at the context point and
// ends with 1; where it finds none it ends at once.
INT_PTR AnimationDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
