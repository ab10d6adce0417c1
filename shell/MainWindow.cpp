#include "shell/MainWindow.h"

#include "platform/User.h"
#include "shell/CommandButtons.h"
#include "shell/ContextMenuCommands.h"
#include "shell/FramePresentation.h"
#include "shell/KeyEditing.h"
#include "shell/MouseEditing.h"
#include "shell/ShellContext.h"

namespace {

void OnCreate(HWND window)
{
    CreateCommandButtons(window);
    LoadContextMenus();
}

// Each group of handlers takes the ids that are its own and leaves the others alone.
void OnCommand(WORD id)
{
    RunButtonCommand(id);
    RunContextMenuCommand(id);
    SetFocus(Shell().mainWindow);
}

} // namespace

LRESULT MainWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_CREATE:
        OnCreate(window);
        break;
    case WM_DESTROY:
        Shell().quit = true;
        break;
    case WM_ERASEBKGND:
    case WM_WINDOWPOSCHANGED:
        PresentFrame();
        break;
    case WM_KEYDOWN:
        EditWithKey(static_cast<int>(wParam));
        break;
    case WM_COMMAND:
        OnCommand(LOWORD(wParam));
        break;
    case WM_MOUSEMOVE:
        OnMouseMove(MouseMessage::From(wParam, lParam));
        break;
    case WM_LBUTTONDOWN:
        OnLeftPress(MouseMessage::From(wParam, lParam));
        break;
    case WM_LBUTTONUP:
        OnLeftRelease(MouseMessage::From(wParam, lParam));
        break;
    case WM_RBUTTONDOWN:
        OnRightPress(MouseMessage::From(wParam, lParam));
        break;
    default:
        break;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}
