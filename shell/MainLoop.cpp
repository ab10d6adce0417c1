#include "shell/MainLoop.h"

#include "platform/Kernel.h"
#include "platform/User.h"
#include "shell/FramePresentation.h"
#include "shell/ShellContext.h"
#include "shell/StartUp.h"

namespace {
constexpr DWORD idlePauseMs = 100;
} // namespace

int RunEditor(HINSTANCE instance, int showState)
{
    if (!StartUp(instance, showState))
        return 0;
    int exitStatus = 0;
    while (!Shell().quit && TurnMainLoop(exitStatus)) { }
    return exitStatus;
}

bool TurnMainLoop(int& exitStatus)
{
    MSG message;
    if (!PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (Shell().quit)
            return true; // the close box was pressed meanwhile: there is no window to show a frame on
        PresentFrame();
        Sleep(idlePauseMs);
        return true;
    }
    if (message.message == WM_QUIT) {
        exitStatus = static_cast<int>(message.wParam);
        return false;
    }
    if (message.message == WM_CLOSE)
        return false;
    TranslateMessage(&message);
    DispatchMessageA(&message);
    return true;
}
