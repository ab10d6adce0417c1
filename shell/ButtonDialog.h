#pragma once

#include "platform/Types.h"

// The dialog of a button: its number of sections and boundary behaviour. It edits the object at the context point and
// ends with 1; where it finds none it ends at once.
INT_PTR ButtonDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
