#include "platform/Desktop.h"
#include "platform/User.h"
#include "platform/windows/ResourceLookup.h"
#include "platform/windows/WindowClasses.h"
#include "platform/windows/WindowDestruction.h"
#include "platform/windows/WindowPlacement.h"
#include "platform/windows/WindowTable.h"

#include <cstdint>
#include <memory>

namespace {

struct OuterPlace {
    int x;
    int y;
    int width;
    int height;
};

// A window without a place or size of its own begins at a quarter of the display and covers half of it.
void PlaceNewWindow(platform::Window& window, const OuterPlace& outer)
{
    const SIZE display = platform::InstalledDesktop()->DisplaySize();
    const bool defaultPlace = outer.x == CW_USEDEFAULT;
    const bool defaultSize = outer.width == CW_USEDEFAULT;
    platform::PlaceOuter(window, defaultPlace ? display.cx / 4 : outer.x, defaultPlace ? display.cy / 4 : outer.y,
        defaultSize ? display.cx / 2 : outer.width, defaultSize ? display.cy / 2 : outer.height);
}

HWND CreateTopLevel(
    const WNDCLASSEXA& windowClass, const char* title, DWORD style, const OuterPlace& outer, HINSTANCE instance)
{
    auto record = std::make_unique<platform::Window>();
    record->text = title ? title : "";
    record->closeBox = (style & WS_SYSMENU) != 0;
    record->visible = (style & WS_VISIBLE) != 0;
    record->erasePending = record->visible;
    record->instance = instance;
    record->procedure = windowClass.lpfnWndProc;
    record->background = windowClass.hbrBackground;
    record->largeIcon = windowClass.hIcon;
    record->smallIcon = windowClass.hIconSm;
    record->wantsDoubleClicks = (windowClass.style & CS_DBLCLKS) != 0;
    PlaceNewWindow(*record, outer);

    platform::Window& window = platform::AddWindow(std::move(record));
    const bool refused = SendMessageA(&window, WM_CREATE, 0, 0) == -1;
    if (!platform::IsWindow(&window))
        return nullptr;
    if (refused) {
        platform::DestroyWindow(window);
        return nullptr;
    }
    window.opened = true;
    platform::InstalledDesktop()->WindowOpened(window);
    return &window;
}

// Buttons are made while their parent is: the desktop opens a window with all its children.
HWND CreateButton(HWND parent, const char* caption, DWORD style, RECT place, HMENU id)
{
    if (!platform::IsWindow(parent) || parent->kind != platform::WindowKind::TopLevel || parent->opened)
        return nullptr;
    auto button = std::make_unique<platform::Window>();
    button->kind = platform::WindowKind::PushButton;
    button->id = static_cast<int>(reinterpret_cast<intptr_t>(id));
    button->text = caption ? caption : "";
    button->parent = parent;
    button->place = place;
    button->visible = (style & WS_VISIBLE) != 0;
    button->instance = parent->instance;
    return parent->children.emplace_back(std::move(button)).get();
}

} // namespace

HWND CreateWindowExA(DWORD, const char* className, const char* windowName, DWORD style, int x, int y, int width,
    int height, HWND parent, HMENU menuOrId, HINSTANCE instance, void*)
{
    if (!platform::InstalledDesktop() || platform::ResourceNumber(className))
        return nullptr;
    if (platform::SameName(className, "BUTTON"))
        return CreateButton(parent, windowName, style, platform::PlaceAt(x, y, width, height), menuOrId);
    const WNDCLASSEXA* windowClass = platform::FindWindowClass(className);
    if (!windowClass || parent || (style & WS_CHILD) != 0)
        return nullptr;
    return CreateTopLevel(*windowClass, windowName, style, { x, y, width, height }, instance);
}

HMENU ControlId(int id)
{
    return reinterpret_cast<HMENU>(static_cast<intptr_t>(id));
}
