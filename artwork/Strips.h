#pragma once

#include <QImage>

// The sample animations, with soft edges.
namespace artwork {

QImage PaintTorch(); // eight frames, side by side
QImage PaintWheel(); // eight frames, stacked

} // namespace artwork
