#pragma once

#include "platform/Types.h"

// What a property dialog does about the messages that concern it. A dialog without a close box has no `onClose`.
struct DialogHandlers {
    void (*onInit)(HWND dialog);
    void (*onCommand)(HWND dialog, int controlId);
    void (*onClose)(HWND dialog) = nullptr;
};

// Routes one message; a moved dialog has the canvas under it drawn again. Always answers 0, which leaves everything
// else to the dialog manager.
INT_PTR RouteDialogMessage(const DialogHandlers& handlers, HWND dialog, UINT message, WPARAM wParam);

// How a dialog's own buttons leave it.
void AskToClose(HWND dialog);
