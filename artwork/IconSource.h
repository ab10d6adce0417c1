#pragma once

#include <QString>

namespace artwork {

// Writes IconPictures.cpp into the folder: the program's icons as arrays of pixels.
[[nodiscard]] bool WriteIconSource(const QString& folder);

} // namespace artwork
