#include "platform/windows/InputPump.h"

#include "platform/Desktop.h"
#include "platform/DesktopEvents.h"
#include "platform/windows/MessageQueue.h"
#include "platform/windows/WindowTable.h"

#include <utility>

namespace platform {

namespace {

bool pumping = false; // the desktop is letting input in

// While a question is open, moves do not reach the window under it.
void PostPointer(Desktop& desktop)
{
    for (Window* window : RootWindows()) {
        if (!window->pointerPending || !TakesInput(*window))
            continue;
        window->pointerPending = false;
        if (const auto at = desktop.PointerIn(*window))
            PostMouse(*window, WM_MOUSEMOVE, *at, 0);
    }
}

} // namespace

bool LetInputIn(bool wait)
{
    Desktop* desktop = InstalledDesktop();
    if (!desktop || pumping)
        return false;
    PostPointer(*desktop);
    if (HasMessages())
        return true;
    pumping = true;
    const bool anyCame = desktop->Pump(wait);
    pumping = false;
    return anyCame;
}

InnerPump::InnerPump()
    : outerPumping(std::exchange(pumping, false))
{
}

InnerPump::~InnerPump()
{
    pumping = outerPumping;
}

} // namespace platform
