#pragma once

#include "platform/Types.h"

// The dialog of a picture: mode, appearance effect, alpha and boundary behaviour. It edits the object at the context
// point and ends with 1; where it finds none it ends at once.
INT_PTR PictureDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
