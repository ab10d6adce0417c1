#pragma once

#include "platform/Surface.h"
#include "platform/Types.h"
#include "platform/User.h"

#include <memory>
#include <string>
#include <vector>

namespace platform {

enum class WindowKind { TopLevel, Dialog, PushButton, CheckBox, Edit, DropDown, Label, GroupFrame };

// A window or control as the program knows it. These records are the truth; a desktop shows them and reports what the
// user did to them through platform/DesktopEvents.h. Texts are code page 950.
struct Window {
    WindowKind kind = WindowKind::TopLevel;
    int id = -1; // of a child
    std::string text; // title, caption or content
    Window* parent = nullptr; // of a child; the owner of a dialog; null otherwise
    std::vector<std::unique_ptr<Window>> children; // in creation order

    // Where the client area lies: on the display for a top-level window or dialog, in the parent's client area for a
    // child. A drop-down's rectangle is that of its closed field.
    RECT place {};
    bool visible = false;
    bool enabled = true;
    bool closeBox = true; // has a system menu with a close box
    HINSTANCE instance = nullptr;
    bool opened = false; // the desktop has been given it
    bool dying = false; // its destruction is under way

    // Of a top-level window.
    WNDPROC procedure = nullptr;
    HBRUSH background = nullptr;
    HICON largeIcon = nullptr;
    HICON smallIcon = nullptr;
    bool wantsDoubleClicks = false;
    bool erasePending = false; // InvalidateRect asked for an erase
    bool pointerPending = false; // a question has closed: the pointer may lie somewhere else by now
    Surface surface;

    // Of a dialog.
    DLGPROC dialogProcedure = nullptr;
    bool ended = false;
    INT_PTR result = 0;

    // Of a control.
    bool digitsOnly = false;
    bool sorted = false;
    bool checked = false;
    std::vector<std::string> items;
    int selection = -1;
    int openHeight = 0; // of a drop-down with its list, pixels
};

} // namespace platform
