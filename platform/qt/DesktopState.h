#pragma once

#include "platform/qt/InputReports.h"
#include "platform/qt/WidgetMap.h"

#include <Qt>

namespace platform {

// What the widgets of one desktop share.
struct DesktopState {
    WidgetMap widgets;
    InputReports reports { widgets };
    Qt::KeyboardModifiers modifiers; // held when the latest told input was made
};

} // namespace platform
