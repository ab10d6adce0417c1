#include "platform/windows/WindowTable.h"

#include "platform/Desktop.h"

#include <algorithm>

namespace platform {

namespace {

std::vector<std::unique_ptr<Window>>& Table()
{
    static std::vector<std::unique_ptr<Window>> table;
    return table;
}

bool IsRoot(const Window& window)
{
    return window.kind == WindowKind::TopLevel || window.kind == WindowKind::Dialog;
}

} // namespace

bool IsWindow(const Window* window)
{
    if (!window)
        return false;
    for (const auto& root : Table()) {
        if (root.get() == window)
            return true;
        for (const auto& child : root->children)
            if (child.get() == window)
                return true;
    }
    return false;
}

Window& AddWindow(std::unique_ptr<Window> window)
{
    return *Table().emplace_back(std::move(window));
}

std::vector<Window*> RootWindows()
{
    std::vector<Window*> roots;
    for (const auto& root : Table())
        roots.push_back(root.get());
    return roots;
}

void RemoveWindow(Window& root)
{
    std::erase_if(Table(), [&root](const auto& entry) { return entry.get() == &root; });
}

Window& RootOf(Window& window)
{
    return IsRoot(window) ? window : *window.parent;
}

const Window& RootOf(const Window& window)
{
    return IsRoot(window) ? window : *window.parent;
}

bool TakesInput(const Window& window)
{
    const Window& root = RootOf(window);
    return window.enabled && root.enabled && !root.ended && !root.dying;
}

void ShowChange(Window& window)
{
    Desktop* desktop = InstalledDesktop();
    if (desktop && RootOf(window).opened)
        desktop->WindowChanged(window);
}

} // namespace platform
