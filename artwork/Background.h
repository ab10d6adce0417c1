#pragma once

#include <QImage>

namespace artwork {

// 800 by 600 pixels: the whole canvas.
QImage PaintBackground();

} // namespace artwork
