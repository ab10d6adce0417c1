#pragma once

#include <QImage>

// The sample pictures.
namespace artwork {

QImage PaintGem(); // hard edges
QImage PaintPortrait();
QImage PaintNote();

} // namespace artwork
