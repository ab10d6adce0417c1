#pragma once

#include "artwork/BmpWriter.h"

#include <QImage>

namespace artwork {

enum class Transparency {
    None,
    GreenKey, // a pixel is opaque or has the key colour
    Companion, // soft edges: the alpha goes into a file of its own
};

// Reduces a painted picture to 256 colours of 5 bits a channel, the ones that the frame can show, with error diffusion.
IndexedPicture Quantise(const QImage& image, Transparency transparency);

// The picture's alpha as shades of grey.
IndexedPicture AlphaPlane(const QImage& image);

} // namespace artwork
