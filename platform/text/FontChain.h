#pragma once

#include "platform/text/FontFace.h"

#include <cstddef>

namespace platform {

// The fonts with Chinese characters in order of preference, each looked for when it is first wanted.
class FontChain {
public:
    FontChain();
    FontChain(const FontChain&) = delete;
    FontChain& operator=(const FontChain&) = delete;
    ~FontChain();

    // Null past the last one.
    FontFace* At(size_t position);
    // A face that is no link of the chain and must go before it; null when the file cannot be used.
    std::unique_ptr<FontFace> OpenBeside(const FontFile& file) const;

private:
    FT_LibraryRec_* library = nullptr;
    std::vector<std::unique_ptr<FontFace>> faces;
    size_t nextChoice = 0;
};

} // namespace platform
