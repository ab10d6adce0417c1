#pragma once

#include "platform/Types.h"

// The dialog of a check box: its label. It edits the object at the context point and ends with 1; where it finds none
// it ends at once.
INT_PTR CheckBoxDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
