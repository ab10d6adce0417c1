#include "platform/qt/TopLevelPlace.h"

#include "platform/DesktopEvents.h"

namespace platform {

QRect RectangleOf(const RECT& place)
{
    return { place.left, place.top, place.right - place.left, place.bottom - place.top };
}

Qt::WindowFlags FrameFlags(const Window& record, Qt::WindowType type)
{
    Qt::WindowFlags flags = type | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::MSWindowsFixedSizeDialogHint;
    if (record.closeBox)
        flags |= Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    return flags;
}

void TopLevelPlace::Mirror()
{
    const QRect place = RectangleOf(record.place);
    if (place == mirrored)
        return;
    mirrored = place;
    widget.setFixedSize(place.size());
    // The toolkit places the frame, and knows it only once the window is on the display.
    const QPoint inFrame = widget.geometry().topLeft() - widget.frameGeometry().topLeft();
    widget.move(place.topLeft() - inFrame);
}

void TopLevelPlace::OnMoved()
{
    if (!state.widgets.Shows(widget, record))
        return;
    state.reports.Add(record, [this] { return TellMove(); });
}

// Of several moves in a row only the first is told, with the place that the last one led to.
bool TopLevelPlace::TellMove()
{
    const QPoint now = widget.geometry().topLeft();
    if (now == mirrored.topLeft())
        return false;
    mirrored.moveTopLeft(now);
    WindowMoved(record, now.x(), now.y());
    return true;
}

} // namespace platform
