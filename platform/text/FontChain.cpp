#include "platform/text/FontChain.h"

#include <ft2build.h>
#include FT_FREETYPE_H

namespace platform {

FontChain::FontChain()
{
    if (FT_Init_FreeType(&library) != 0)
        library = nullptr;
}

FontChain::~FontChain()
{
    faces.clear();
    if (library)
        FT_Done_FreeType(library);
}

FontFace* FontChain::At(size_t position)
{
    while (library && faces.size() <= position && nextChoice < fontChoices) {
        const auto file = FindFont(nextChoice++);
        auto font = file ? FontFace::Open(library, *file) : nullptr;
        if (font && font->HasChinese())
            faces.push_back(std::move(font));
    }
    return position < faces.size() ? faces[position].get() : nullptr;
}

std::unique_ptr<FontFace> FontChain::OpenBeside(const FontFile& file) const
{
    return library ? FontFace::Open(library, file) : nullptr;
}

} // namespace platform
