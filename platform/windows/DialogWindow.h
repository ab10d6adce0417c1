#pragma once

#include "platform/Resources.h"
#include "platform/Window.h"

#include <memory>

namespace platform {

// The record of a template's dialog with its controls, not yet visible.
std::unique_ptr<Window> MakeDialogWindow(const DialogTemplate& source, Window* owner);

} // namespace platform
