#include "platform/Gdi.h"
#include "platform/windows/Controls.h"
#include "platform/windows/WindowDestruction.h"
#include "platform/windows/WindowTable.h"

namespace {

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
