#pragma once

#include <QImage>

// The sample buttons, one section per look, with soft edges.
namespace artwork {

QImage PaintStartButtons(); // three sections, side by side
QImage PaintMenuButtons(); // four sections, stacked

} // namespace artwork
