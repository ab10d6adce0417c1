#pragma once

#include "platform/Window.h"

#include <memory>
#include <vector>

// All windows that there are. A handle that is not in the table, a stale one for example, names no window; the
// window-system calls look here before they look into a record.
namespace platform {

bool IsWindow(const Window* window);

// Takes over a top-level window or a dialog.
Window& AddWindow(std::unique_ptr<Window> window);
// The top-level windows and dialogs, oldest first.
std::vector<Window*> RootWindows();
// Takes a top-level window or a dialog off the table; its record goes.
void RemoveWindow(Window& root);

// The top-level window or dialog that a control lies in; of these, itself.
Window& RootOf(Window& window);
const Window& RootOf(const Window& window);
// Whether what the user does to it is let through: not to what is disabled or waits for a modal question.
bool TakesInput(const Window& window);
// Lets the desktop show the record's new state, once it has the window at all.
void ShowChange(Window& window);

} // namespace platform
