#pragma once

#include "platform/qt/DesktopState.h"

// The controls of windows and dialogs as widgets.
namespace platform {

// Makes the widget of a child record, binds the two and shows the record's fields. The parent owns the widget.
void MakeControl(Window& control, QWidget& parent, DesktopState& state);
// Shows the record's fields where they differ from what the widget shows; the user's handlers hear nothing of it.
void MirrorControl(QWidget& widget, const Window& control);

} // namespace platform
