#include "shell/DialogRouting.h"

#include "platform/User.h"
#include "shell/FramePresentation.h"

INT_PTR RouteDialogMessage(const DialogHandlers& handlers, HWND dialog, UINT message, WPARAM wParam)
{
    switch (message) {
    case WM_INITDIALOG:
        handlers.onInit(dialog);
        break;
    case WM_COMMAND:
        handlers.onCommand(dialog, LOWORD(wParam));
        break;
    case WM_CLOSE:
        if (handlers.onClose)
            handlers.onClose(dialog);
        break;
    case WM_WINDOWPOSCHANGED:
        PresentFrame();
        break;
    default:
        break;
    }
    return 0;
}

void AskToClose(HWND dialog)
{
    PostMessageA(dialog, WM_CLOSE, 0, 0);
}
