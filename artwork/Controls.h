#pragma once

#include <QImage>

// The parts of check boxes and select boxes, with hard edges.
namespace artwork {

// Four sections, stacked: unchecked, checked, partly checked (the editor never shows it), disabled.
QImage PaintCheckBoxes();
QImage PaintEditBox();
// Four sections, side by side, one per look.
QImage PaintArrowButtons(bool up);

} // namespace artwork
