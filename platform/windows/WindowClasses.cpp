#include "platform/windows/WindowClasses.h"

#include "platform/Resources.h"
#include "platform/windows/ResourceLookup.h"

#include <cstdint>
#include <deque>
#include <string>

namespace platform {

struct Cursor {
    const char* name;
};

namespace {

struct RegisteredClass {
    std::string name;
    WNDCLASSEXA windowClass;
};

constexpr size_t firstAtom = 0xC000;

std::deque<RegisteredClass>& Classes()
{
    static std::deque<RegisteredClass> classes;
    return classes;
}

} // namespace

const WNDCLASSEXA* FindWindowClass(const char* name)
{
    for (const RegisteredClass& entry : Classes())
        if (SameName(entry.name, name))
            return &entry.windowClass;
    return nullptr;
}

void ForgetClasses()
{
    Classes().clear();
}

} // namespace platform

ATOM RegisterClassExA(const WNDCLASSEXA* windowClass)
{
    if (!windowClass || !windowClass->lpfnWndProc || !windowClass->lpszClassName)
        return 0;
    auto& classes = platform::Classes();
    if (platform::FindWindowClass(windowClass->lpszClassName) || classes.size() >= UINT16_MAX - platform::firstAtom)
        return 0;
    classes.push_back({ windowClass->lpszClassName, *windowClass });
    classes.back().windowClass.lpszClassName = classes.back().name.c_str();
    return static_cast<ATOM>(platform::firstAtom + classes.size() - 1);
}

HICON LoadIconA(HINSTANCE instance, const char* name)
{
    const auto number = platform::ResourceNumber(name);
    if (!instance || !number)
        return nullptr;
    for (const platform::Icon& icon : instance->icons)
        if (icon.id == *number)
            return &icon;
    return nullptr;
}

HCURSOR LoadCursorA(HINSTANCE instance, const char* name)
{
    static const platform::Cursor arrow { IDC_ARROW };
    return !instance && name == IDC_ARROW ? &arrow : nullptr;
}
