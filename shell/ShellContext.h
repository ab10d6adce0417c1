#pragma once

#include "objects/ScreenDocument.h"
#include "platform/Types.h"
#include "shell/EditorState.h"

#include <cstdint>

// The pop-ups that a right press opens, by the kind of the object under it.
struct ContextMenus {
    HMENU general = nullptr;
    HMENU animation = nullptr;
    HMENU checkBox = nullptr;
    HMENU selectbox = nullptr;
};

// The editor's process-wide values. Exactly one exists, from before start-up until after the main loop; Shell() finds
// it.
struct ShellContext {
    ShellContext();
    ~ShellContext();
    ShellContext(const ShellContext&) = delete;
    ShellContext& operator=(const ShellContext&) = delete;

    HINSTANCE instance = nullptr;
    HWND mainWindow = nullptr;
    bool quit = false; // the main window is gone
    ContextMenus menus;
    ScreenDocument document;
    EditorState editing;
    const uint16_t* lastFrame = nullptr; // what the latest composition returned
};

ShellContext& Shell();
