#pragma once

#include "platform/Types.h"

// The command buttons in the strip beside the canvas; a button's control id is its command.
constexpr WORD CommandLoadPicture = 100;
constexpr WORD CommandLoadButton = 101;
constexpr WORD CommandLoadAnimation = 102;
constexpr WORD CommandInsertWord = 103;
constexpr WORD CommandNew = 104;
constexpr WORD CommandInsertCheckBox = 105;
constexpr WORD CommandInsertSelectbox = 106;
constexpr WORD CommandLoadScript = 110;
constexpr WORD CommandSaveScriptAs = 111;

// Creates the nine buttons as children of the window.
void CreateCommandButtons(HWND window);
// Carries the command of a button out; other ids do nothing.
void RunButtonCommand(WORD id);
