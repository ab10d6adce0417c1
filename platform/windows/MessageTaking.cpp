#include "platform/windows/InputPump.h"
#include "platform/windows/MessageQueue.h"
#include "platform/windows/WindowErasing.h"

namespace {

// What the user does can be sent without a message to take. A stream of it that does not end (a window that is dragged
// about faster than it is redrawn) must not keep the caller for ever: after this much, nothing counts as waiting.
constexpr int maxSentInARow = 1000;

} // namespace

BOOL PeekMessageA(MSG* message, HWND window, UINT first, UINT last, UINT remove)
{
    // Only the whole queue can be asked for, and only to take from it.
    if (!message || window || first != 0 || last != 0 || remove != PM_REMOVE)
        return FALSE;
    platform::DeliverErases();
    // What is queued was done before what the user does now, and some of that is sent without queueing. Behind a quit
    // request nothing is let in any more: the program is about to end.
    const auto wantsInput = [] { return !platform::HasMessages() && !platform::HasQuitRequest(); };
    for (int sent = 0; sent < maxSentInARow && wantsInput() && platform::LetInputIn(false); ++sent)
        platform::DeliverErases();
    if (const auto taken = platform::TakeMessage()) {
        *message = *taken;
        return TRUE;
    }
    const auto exitCode = platform::TakeQuitRequest();
    if (!exitCode)
        return FALSE;
    *message = {};
    message->message = WM_QUIT;
    message->wParam = static_cast<WPARAM>(*exitCode);
    return TRUE;
}
