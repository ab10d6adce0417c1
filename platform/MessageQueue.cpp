#include "platform/MessageQueue.h"

#include "platform/Controls.h"
#include "platform/Desktop.h"
#include "platform/DesktopEvents.h"
#include "platform/Gdi.h"
#include "platform/WindowTable.h"

#include <deque>
#include <optional>
#include <utility>

namespace {

// What the user does can be sent without a message to take. A stream of it that does not end (a window that is dragged
// about faster than it is redrawn) must not keep the caller for ever: after this much, nothing counts as waiting.
constexpr int maxSentInARow = 1000;

struct QueueState {
    std::deque<MSG> messages;
    std::optional<int> quitCode; // a quit request waits until the queue is empty
    bool pumping = false; // the desktop is letting input in
};

QueueState& Queue()
{
    static QueueState queue;
    return queue;
}

// While a question is open, moves do not reach the window under it.
void PostPointer(platform::Desktop& desktop)
{
    for (HWND window : platform::RootWindows()) {
        if (!window->pointerPending || !platform::TakesInput(*window))
            continue;
        window->pointerPending = false;
        if (const auto at = desktop.PointerIn(*window))
            platform::PostMouse(*window, WM_MOUSEMOVE, *at, 0);
    }
}

// To be called once the queue is empty. False when there was none.
bool LetInputIn(bool wait)
{
    platform::Desktop* desktop = platform::InstalledDesktop();
    if (!desktop || Queue().pumping)
        return false;
    PostPointer(*desktop);
    if (!Queue().messages.empty())
        return true;
    Queue().pumping = true;
    const bool anyCame = desktop->Pump(wait);
    Queue().pumping = false;
    return anyCame;
}

void DeliverErases()
{
    for (HWND window : platform::RootWindows())
        if (platform::IsWindow(window))
            platform::DeliverErase(*window);
}

std::optional<MSG> TakeMessage()
{
    auto& messages = Queue().messages;
    if (messages.empty())
        return std::nullopt;
    const MSG message = messages.front();
    messages.pop_front();
    return message;
}

LRESULT EraseBackground(HWND window, HDC context)
{
    RECT client {};
    GetClientRect(window, &client);
    if (context && window->background)
        FillRect(context, &client, window->background);
    return TRUE;
}

// What a dialog's procedure leaves alone: its close box is the same as the cancel key.
void FinishDialogMessage(HWND dialog, UINT message)
{
    if (message == WM_CLOSE && platform::IsWindow(dialog) && !dialog->ended)
        SendMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
}

} // namespace

namespace platform {

void DropMessagesOf(const Window& root)
{
    std::erase_if(
        Queue().messages, [&](const MSG& message) { return message.hwnd && &RootOf(*message.hwnd) == &root; });
}

void ClearMessages()
{
    Queue().messages.clear();
    Queue().quitCode.reset();
}

void DeliverErase(Window& window)
{
    if (!window.erasePending || !window.visible)
        return;
    window.erasePending = false;
    const HDC context = GetDC(&window);
    SendMessageA(&window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(context), 0);
    ReleaseDC(&window, context);
}

void RunModalLoop(const std::function<bool()>& done)
{
    // Whoever waits inside the pump for the answer is served by an inner pump.
    const bool outerPumping = std::exchange(Queue().pumping, false);
    while (InstalledDesktop() && !done()) {
        DeliverErases();
        if (const auto message = TakeMessage())
            DispatchMessageA(&*message);
        else
            LetInputIn(true);
    }
    Queue().pumping = outerPumping;
}

} // namespace platform

BOOL PeekMessageA(MSG* message, HWND window, UINT first, UINT last, UINT remove)
{
    // Only the whole queue can be asked for, and only to take from it.
    if (!message || window || first != 0 || last != 0 || remove != PM_REMOVE)
        return FALSE;
    DeliverErases();
    // What is queued was done before what the user does now, and some of that is sent without queueing.
    for (int sent = 0; sent < maxSentInARow && Queue().messages.empty() && LetInputIn(false); ++sent)
        DeliverErases();
    if (const auto taken = TakeMessage()) {
        *message = *taken;
        return TRUE;
    }
    if (!Queue().quitCode)
        return FALSE;
    *message = {};
    message->message = WM_QUIT;
    message->wParam = static_cast<WPARAM>(*std::exchange(Queue().quitCode, std::nullopt));
    return TRUE;
}

BOOL TranslateMessage(const MSG*)
{
    // The system has no character messages: texts are typed into controls only.
    return FALSE;
}

LRESULT DispatchMessageA(const MSG* message)
{
    return message ? SendMessageA(message->hwnd, message->message, message->wParam, message->lParam) : 0;
}

LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!platform::IsWindow(window))
        return 0;
    if (window->kind == platform::WindowKind::TopLevel)
        return window->procedure(window, message, wParam, lParam);
    if (window->kind != platform::WindowKind::Dialog)
        return platform::SendToControl(*window, message, wParam, lParam);
    const INT_PTR answer = window->dialogProcedure(window, message, wParam, lParam);
    if (answer == 0)
        FinishDialogMessage(window, message);
    return answer;
}

LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM)
{
    if (!platform::IsWindow(window))
        return 0;
    if (message == WM_ERASEBKGND)
        return EraseBackground(window, reinterpret_cast<HDC>(wParam));
    if (message == WM_CLOSE)
        platform::DestroyWindow(*window);
    return 0;
}

BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (window && !platform::IsWindow(window))
        return FALSE;
    Queue().messages.push_back({ window, message, wParam, lParam });
    return TRUE;
}

void PostQuitMessage(int exitCode)
{
    Queue().quitCode = exitCode;
}
