#include "platform/windows/Menus.h"

#include "platform/Desktop.h"
#include "platform/Menu.h"
#include "platform/Resources.h"
#include "platform/User.h"
#include "platform/windows/ModalQuestion.h"
#include "platform/windows/ResourceLookup.h"
#include "platform/windows/WindowTable.h"

#include <memory>
#include <vector>

namespace platform {

namespace {

struct LoadedMenu {
    const MenuTemplate* source;
    std::unique_ptr<Menu> menu;
};

// The system keeps what it has loaded; loading a menu again gives the same one.
std::vector<LoadedMenu>& LoadedMenus()
{
    static std::vector<LoadedMenu> menus;
    return menus;
}

bool IsLoaded(const Menu* menu)
{
    for (const LoadedMenu& loaded : LoadedMenus()) {
        if (loaded.menu.get() == menu)
            return true;
        for (const auto& popup : loaded.menu->popups)
            if (popup.get() == menu)
                return true;
    }
    return false;
}

std::unique_ptr<Menu> MakeMenu(const MenuTemplate& source)
{
    auto popup = std::make_unique<Menu>();
    for (const MenuItemTemplate& item : source.items)
        popup->items.push_back({ item.id, item.text });
    auto menu = std::make_unique<Menu>();
    menu->popups.push_back(std::move(popup));
    return menu;
}

Menu* Load(const MenuTemplate& source)
{
    for (const LoadedMenu& loaded : LoadedMenus())
        if (loaded.source == &source)
            return loaded.menu.get();
    LoadedMenus().push_back({ &source, MakeMenu(source) });
    return LoadedMenus().back().menu.get();
}

} // namespace

void ForgetMenus()
{
    LoadedMenus().clear();
}

} // namespace platform

HMENU LoadMenuA(HINSTANCE instance, const char* name)
{
    const auto* source = instance ? platform::FindResource(instance->menus, name) : nullptr;
    return source ? platform::Load(*source) : nullptr;
}

HMENU GetSubMenu(HMENU menu, int position)
{
    if (!platform::IsLoaded(menu) || position < 0 || static_cast<size_t>(position) >= menu->popups.size())
        return nullptr;
    return menu->popups[static_cast<size_t>(position)].get();
}

BOOL TrackPopupMenu(HMENU menu, UINT, int x, int y, int, HWND owner, const RECT*)
{
    platform::Desktop* desktop = platform::InstalledDesktop();
    if (!desktop || !platform::IsLoaded(menu) || !platform::IsWindow(owner))
        return FALSE;
    uint32_t chosen = 0;
    {
        const platform::ModalQuestion question(owner);
        chosen = desktop->ShowMenu(*owner, *menu, { x, y });
    }
    if (chosen != 0)
        PostMessageA(owner, WM_COMMAND, chosen, 0);
    return TRUE;
}
