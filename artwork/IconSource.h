#pragma once

#include <QImage>
#include <QString>

namespace artwork {

// The program's own sign, a framed picture with a brush, in any size in pixels. artwork/icon.svg shows the same.
QImage PaintIcon(int size);

// Writes IconPictures.cpp into the folder: the program's icons as arrays of pixels. False when it cannot be written.
[[nodiscard]] bool WriteIconSource(const QString& folder);

} // namespace artwork
