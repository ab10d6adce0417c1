#pragma once

#include "objects/ScreenObject.h"
#include "platform/Types.h"

// Loads the four pop-ups into the shell context.
void LoadContextMenus();
// Opens the pop-up for objects of the kind with its corner at the point (client coordinates). A choice arrives as a
// command message.
void ShowContextMenu(ObjectKind kind, vec point);
// Runs the commands of the context menus; other ids do nothing.
void RunContextMenuCommand(WORD id);
