#pragma once

#include <cstdint>
#include <span>

// The records that a program's resources are made of. Texts are UTF-8: only the desktop reads them.
namespace platform {

enum class ControlKind { Label, GroupFrame, Edit, DropDown, CheckBox, PushButton };

// One control of a dialog; its rectangle is in dialog units (2 by 2 pixels each) of the dialog's client area.
struct DialogControl {
    ControlKind kind;
    int id; // -1: none
    const char* text;
    int x, y, width, height; // of a drop-down: with its list open
    bool displayOnly = false;
    bool digitsOnly = false;
    bool sorted = false;
};

struct DialogTemplate {
    const char* name; // matched without regard to case
    const char* title;
    int width, height;
    bool closeBox;
    std::span<const DialogControl> controls;
};

struct MenuItemTemplate {
    uint32_t id;
    const char* text;
};

// A menu resource with a single pop-up.
struct MenuTemplate {
    const char* name; // matched without regard to case
    std::span<const MenuItemTemplate> items;
};

// A square picture, rows from the top, 0xAARRGGBB.
struct Icon {
    int id;
    int size;
    std::span<const uint32_t> pixels;
};

// What a program brings along; its address is the instance handle.
struct Module {
    std::span<const DialogTemplate> dialogs;
    std::span<const MenuTemplate> menus;
    std::span<const Icon> icons;
};

} // namespace platform
