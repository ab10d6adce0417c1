#pragma once

#include "platform/qt/DesktopState.h"

namespace platform {

// Where a window or dialog lies, kept equal in record and widget: the record's changes move the widget, the user's
// moves are reported.
class TopLevelPlace {
public:
    TopLevelPlace(Window& window, QWidget& shownBy, DesktopState& shared)
        : record(window)
        , widget(shownBy)
        , state(shared)
    {
    }

    // Gives the widget the record's place when that has changed since the last time.
    void Mirror();
    // For the widget's move event.
    void OnMoved();

private:
    bool TellMove();

    Window& record;
    QWidget& widget;
    DesktopState& state;
    QRect mirrored;
};

QRect RectangleOf(const RECT& place);

// The flags of a window with a caption, and a close box if the record has one, but nothing to resize it with.
Qt::WindowFlags FrameFlags(const Window& record, Qt::WindowType type);

} // namespace platform
