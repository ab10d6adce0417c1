#pragma once

#include <QImage>

// What can be painted: each picture in its final size, premultiplied, with soft edges where it has any.
namespace artwork {

QImage PaintBackground();

// The parts of check boxes and select boxes.
QImage PaintCheckBoxes(); // four sections, stacked
QImage PaintEditBox();
QImage PaintArrowButtons(bool up); // four sections, side by side

QImage PaintStartButtons(); // three sections, side by side
QImage PaintMenuButtons(); // four sections, stacked

QImage PaintLogo();
QImage PaintGem(); // hard edges
QImage PaintPortrait();
QImage PaintNote();

QImage PaintTorch(); // eight frames, side by side
QImage PaintWheel(); // eight frames, stacked

// The program's own sign: a framed picture with a brush. artwork/icon.svg shows the same.
QImage PaintIcon(int size);

} // namespace artwork
