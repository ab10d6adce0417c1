#include "platform/windows/WindowDestruction.h"

#include "platform/Desktop.h"
#include "platform/windows/InputState.h"
#include "platform/windows/MessageQueue.h"
#include "platform/windows/WindowTable.h"

namespace platform {

void DestroyWindow(Window& window)
{
    if (window.dying)
        return;
    window.dying = true;
    for (Window* root : RootWindows())
        if (IsWindow(root) && root->kind == WindowKind::Dialog && root->parent == &window)
            DestroyWindow(*root);
    SendMessageA(&window, WM_DESTROY, 0, 0);
    ForgetWindow(window);
}

void ForgetWindow(Window& root)
{
    ForgetInputOf(root);
    DropMessagesOf(root);
    Desktop* desktop = InstalledDesktop();
    if (desktop && root.opened)
        desktop->WindowClosed(root);
    RemoveWindow(root);
}

} // namespace platform
