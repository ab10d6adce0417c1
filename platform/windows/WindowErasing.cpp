#include "platform/windows/WindowErasing.h"

#include "platform/Gdi.h"
#include "platform/windows/WindowTable.h"

namespace platform {

void DeliverErase(Window& window)
{
    if (!window.erasePending || !window.visible)
        return;
    window.erasePending = false;
    const HDC context = GetDC(&window);
    SendMessageA(&window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(context), 0);
    ReleaseDC(&window, context);
}

void DeliverErases()
{
    for (Window* window : RootWindows())
        if (IsWindow(window))
            DeliverErase(*window);
}

} // namespace platform
