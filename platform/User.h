#pragma once

#include "platform/Types.h"

// Windows, messages, menus, dialogs, capture and keys, as far as the editor uses them. Texts are code page 950. What
// carries them out is in windows/, in the files named below.

using WNDPROC = LRESULT (*)(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
using DLGPROC = INT_PTR (*)(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

constexpr UINT WM_CREATE = 0x0001;
constexpr UINT WM_DESTROY = 0x0002;
constexpr UINT WM_CLOSE = 0x0010;
constexpr UINT WM_QUIT = 0x0012;
constexpr UINT WM_ERASEBKGND = 0x0014;
constexpr UINT WM_WINDOWPOSCHANGED = 0x0047;
constexpr UINT WM_KEYDOWN = 0x0100;
constexpr UINT WM_INITDIALOG = 0x0110;
constexpr UINT WM_COMMAND = 0x0111;
constexpr UINT WM_MOUSEMOVE = 0x0200;
constexpr UINT WM_LBUTTONDOWN = 0x0201;
constexpr UINT WM_LBUTTONUP = 0x0202;
constexpr UINT WM_LBUTTONDBLCLK = 0x0203;
constexpr UINT WM_RBUTTONDOWN = 0x0204;
constexpr UINT WM_RBUTTONUP = 0x0205;
constexpr UINT WM_RBUTTONDBLCLK = 0x0206;

constexpr WPARAM MK_LBUTTON = 0x0001;
constexpr WPARAM MK_RBUTTON = 0x0002;
constexpr WPARAM MK_SHIFT = 0x0004;
constexpr WPARAM MK_CONTROL = 0x0008;

constexpr int VK_RETURN = 0x0D;
constexpr int VK_SHIFT = 0x10;
constexpr int VK_CONTROL = 0x11;
constexpr int VK_ESCAPE = 0x1B;
constexpr int VK_PRIOR = 0x21;
constexpr int VK_NEXT = 0x22;
constexpr int VK_LEFT = 0x25;
constexpr int VK_UP = 0x26;
constexpr int VK_RIGHT = 0x27;
constexpr int VK_DOWN = 0x28;
constexpr int VK_DELETE = 0x2E;
// Letter keys have the code of the capital letter.

constexpr UINT CS_VREDRAW = 0x0001;
constexpr UINT CS_HREDRAW = 0x0002;
constexpr UINT CS_DBLCLKS = 0x0008;

constexpr DWORD WS_OVERLAPPED = 0x00000000;
constexpr DWORD WS_SYSMENU = 0x00080000;
constexpr DWORD WS_CAPTION = 0x00C00000;
constexpr DWORD WS_VISIBLE = 0x10000000;
constexpr DWORD WS_CHILD = 0x40000000;
constexpr DWORD BS_PUSHBUTTON = 0x00000000;
constexpr int CW_USEDEFAULT = static_cast<int>(0x80000000);

constexpr int GWL_HINSTANCE = -6;
constexpr int SM_CXSCREEN = 0;
constexpr int SM_CYSCREEN = 1;
constexpr int SW_SHOWNORMAL = 1;
constexpr UINT PM_REMOVE = 1;
constexpr UINT MB_OK = 0;
constexpr int IDOK = 1;
constexpr int IDCANCEL = 2;

constexpr UINT TPM_LEFTALIGN = 0x0000;
constexpr UINT TPM_TOPALIGN = 0x0000;
constexpr UINT TPM_RIGHTBUTTON = 0x0002;

constexpr UINT BM_GETCHECK = 0x00F0;
constexpr UINT BM_SETCHECK = 0x00F1;
constexpr WPARAM BST_UNCHECKED = 0;
constexpr WPARAM BST_CHECKED = 1;
constexpr UINT CB_ADDSTRING = 0x0143;
constexpr UINT CB_DELETESTRING = 0x0144;
constexpr UINT CB_GETCURSEL = 0x0147;
constexpr UINT CB_SETCURSEL = 0x014E;
constexpr LRESULT CB_ERR = -1;

struct WNDCLASSEXA {
    UINT cbSize = 0;
    UINT style = 0;
    WNDPROC lpfnWndProc = nullptr;
    int cbClsExtra = 0;
    int cbWndExtra = 0;
    HINSTANCE hInstance = nullptr;
    HICON hIcon = nullptr;
    HCURSOR hCursor = nullptr;
    HBRUSH hbrBackground = nullptr;
    const char* lpszMenuName = nullptr;
    const char* lpszClassName = nullptr;
    HICON hIconSm = nullptr;
};

struct MSG {
    HWND hwnd = nullptr;
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
};

// A resource is named by a text or by a number in a text's place.
inline const char* MAKEINTRESOURCEA(WORD id)
{
    return reinterpret_cast<const char*>(static_cast<uintptr_t>(id));
}
inline const char* const IDC_ARROW = MAKEINTRESOURCEA(32512);

// Classes and windows (WindowClasses.cpp, WindowCreation.cpp, Windows.cpp). CreateWindowExA sends WM_CREATE before it
// returns; the class "BUTTON" is the system's push button, which a window makes while it handles WM_CREATE.
ATOM RegisterClassExA(const WNDCLASSEXA* windowClass);
HICON LoadIconA(HINSTANCE instance, const char* name);
HCURSOR LoadCursorA(HINSTANCE instance, const char* name); // null instance: the system's
HWND CreateWindowExA(DWORD extendedStyle, const char* className, const char* windowName, DWORD style, int x, int y,
    int width, int height, HWND parent, HMENU menuOrId, HINSTANCE instance, void* parameter);
// A child window's control id, in the place where a top-level window takes its menu.
HMENU ControlId(int id);
BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint); // the outer rectangle
BOOL GetClientRect(HWND window, RECT* rectangle);
int GetSystemMetrics(int index);
BOOL ShowWindow(HWND window, int showState);
BOOL UpdateWindow(HWND window);
BOOL InvalidateRect(HWND window, const RECT* rectangle, BOOL erase);
LONG_PTR GetWindowLongA(HWND window, int index); // wide enough for GWL_HINSTANCE
BOOL ClientToScreen(HWND window, POINT* point);
// Copies at most `capacity` - 1 bytes, whole characters only. Returns the number of bytes copied.
int GetWindowTextA(HWND window, char* text, int capacity);
BOOL SetWindowTextA(HWND window, const char* text);

// Keyboard and mouse (InputState.cpp).
HWND SetFocus(HWND window);
HWND SetCapture(HWND window);
BOOL ReleaseCapture();
int16_t GetKeyState(int virtualKey); // negative: held down

// Messages. PeekMessageA (MessageTaking.cpp) takes (PM_REMOVE) the next message of all windows without waiting; a quit
// request comes once nothing else is left.
BOOL PeekMessageA(MSG* message, HWND window, UINT first, UINT last, UINT remove);
// To the queue (MessageQueue.cpp).
BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
void PostQuitMessage(int exitCode);
// To the window's procedure (MessageDispatch.cpp).
BOOL TranslateMessage(const MSG* message);
LRESULT DispatchMessageA(const MSG* message);
LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Menus (Menus.cpp). A choice arrives as a posted WM_COMMAND of the owner.
HMENU LoadMenuA(HINSTANCE instance, const char* name);
HMENU GetSubMenu(HMENU menu, int position);
BOOL TrackPopupMenu(HMENU menu, UINT flags, int x, int y, int reserved, HWND owner, const RECT* rectangle);

// Dialogs and message boxes (Dialogs.cpp), all modal. DialogBoxParamA answers EndDialog's result, 0 when the dialog
// could not be made, -1 when it went with its owner.
int MessageBoxA(HWND owner, const char* text, const char* caption, UINT type);
INT_PTR DialogBoxParamA(HINSTANCE instance, const char* templateName, HWND owner, DLGPROC procedure, LPARAM parameter);
BOOL EndDialog(HWND dialog, INT_PTR result);
HWND GetDlgItem(HWND dialog, int id);
