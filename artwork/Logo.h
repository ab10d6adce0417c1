#pragma once

#include <QImage>

namespace artwork {

// The name on a brass-bordered plate, with soft edges.
QImage PaintLogo();

} // namespace artwork
