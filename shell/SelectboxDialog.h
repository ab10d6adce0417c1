#pragma once

#include "platform/Types.h"

// The dialog of a select box: adds and deletes choices. It edits the object at the context point and ends with 1; where
// it finds none it ends at once.
INT_PTR SelectboxDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
