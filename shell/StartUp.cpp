#include "shell/StartUp.h"

#include "objects/PictureObject.h"
#include "platform/Big5Literal.h"
#include "platform/FileReplacement.h"
#include "platform/Gdi.h"
#include "platform/User.h"
#include "resources/ProgramResources.h"
#include "shell/MainWindow.h"
#include "shell/ShellContext.h"
#include "shell/WindowLayout.h"

#include <algorithm>
#include <memory>

namespace {

constexpr const char* className = "Tobrik";

void RegisterMainWindowClass(HINSTANCE instance)
{
    WNDCLASSEXA windowClass;
    windowClass.cbSize = sizeof windowClass;
    windowClass.style = CS_HREDRAW | CS_VREDRAW | CS_DBLCLKS;
    windowClass.lpfnWndProc = MainWindowProc;
    windowClass.hInstance = instance;
    windowClass.hIcon = LoadIconA(instance, MAKEINTRESOURCEA(LargeIconId));
    windowClass.hIconSm = LoadIconA(instance, MAKEINTRESOURCEA(SmallIconId));
    windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    windowClass.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
    windowClass.lpszClassName = className;
    RegisterClassExA(&windowClass);
}

void AddBackground()
{
    auto background = std::make_unique<PictureObject>();
    background->SetMode(ModeStatic);
    background->SetFileName("Image\\Basic_background.bmp");
    static_cast<void>(background->Load()); // without it the editor works on a bare canvas
    Shell().document.AddBackground(std::move(background));
}

// Gives the window a client area of exactly ClientWidth by ClientHeight, in the middle of the display.
void PlaceMainWindow(HWND window)
{
    MoveWindow(window, 0, 0, ClientWidth, ClientHeight, FALSE);
    RECT client;
    GetClientRect(window, &client);
    const int borderX = ClientWidth - (client.right - client.left);
    const int borderY = ClientHeight - (client.bottom - client.top);
    const int left = std::max((GetSystemMetrics(SM_CXSCREEN) - ClientWidth) / 2, 0);
    const int top = std::max((GetSystemMetrics(SM_CYSCREEN) - ClientHeight) / 2, 0);
    MoveWindow(window, left, top, ClientWidth + borderX, ClientHeight + borderY, TRUE);
}

} // namespace

bool StartUp(HINSTANCE instance, int showState)
{
    platform::OutliveFileSizeLimit();
    ShellContext& shell = Shell();
    shell.instance = instance;
    RegisterMainWindowClass(instance);
    shell.mainWindow = nullptr;
    shell.menus = {};
    shell.editing.SetPanelOrigin(vec(ScreenWidth + shell.editing.GetMargin(), PanelTop));
    AddBackground();

    shell.mainWindow = CreateWindowExA(0, className, u8"編輯畫面輔助器"_big5, WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU,
        CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, instance, nullptr);
    shell.editing.SetWindow(shell.mainWindow);
    if (!shell.mainWindow)
        return false;

    PlaceMainWindow(shell.mainWindow);
    ShowWindow(shell.mainWindow, showState);
    UpdateWindow(shell.mainWindow);
    return true;
}
