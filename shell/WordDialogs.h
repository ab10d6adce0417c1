#pragma once

#include "platform/Types.h"

// One dialog, two procedures: a text (and, for a word, its colour) becomes a new object on the top layer.
INT_PTR AddWordDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
INT_PTR AddCheckBoxDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
