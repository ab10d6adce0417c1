#include "platform/windows/InputState.h"

#include "platform/Desktop.h"
#include "platform/User.h"
#include "platform/windows/WindowTable.h"

#include <utility>

namespace {

HWND focusedWindow = nullptr;
HWND capturedWindow = nullptr;

} // namespace

namespace platform {

Window* CapturedWindow()
{
    return capturedWindow;
}

void ForgetInputOf(const Window& root)
{
    if (focusedWindow && &RootOf(*focusedWindow) == &root)
        focusedWindow = nullptr;
    if (capturedWindow && &RootOf(*capturedWindow) == &root)
        capturedWindow = nullptr;
}

} // namespace platform

HWND SetFocus(HWND window)
{
    if (!platform::IsWindow(window))
        return nullptr;
    const HWND previous = std::exchange(focusedWindow, window);
    if (platform::Desktop* desktop = platform::InstalledDesktop())
        desktop->FocusChanged(*window);
    return previous;
}

HWND SetCapture(HWND window)
{
    return platform::IsWindow(window) ? std::exchange(capturedWindow, window) : nullptr;
}

BOOL ReleaseCapture()
{
    capturedWindow = nullptr;
    return TRUE;
}

int16_t GetKeyState(int virtualKey)
{
    platform::Desktop* desktop = platform::InstalledDesktop();
    return desktop && desktop->IsKeyDown(virtualKey) ? int16_t { -0x8000 } : int16_t { 0 };
}
