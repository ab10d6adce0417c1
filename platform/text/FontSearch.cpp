#include "platform/text/FontSearch.h"

#include <fontconfig/fontconfig.h>
#include <iterator>
#include <memory>
#include <utility>

namespace platform {

namespace {

// Families with Traditional Chinese; after them comes whatever font claims that language.
constexpr const char* families[] = {
    "AR PL UMing TW",
    "AR PL UMing TW MBE",
    "AR PL UMing HK",
    "Noto Sans CJK TC",
    "Noto Sans TC",
    "Source Han Sans TC",
    "WenQuanYi Zen Hei",
    "Droid Sans Fallback",
};

// The narrowest first; each in pixels per em.
struct NarrowFamily {
    const char* name;
    int pixelSize;
};
constexpr NarrowFamily narrowFamilies[] = {
    { "DejaVu Sans Condensed", 12 },
    { "DejaVu Sans", 11 },
    { "Liberation Sans", 12 },
};

struct PatternDeleter {
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
using PatternOwner = std::unique_ptr<FcPattern, PatternDeleter>;

const FcChar8* FcText(const char* text)
{
    return reinterpret_cast<const FcChar8*>(text);
}

bool IsOfFamily(FcPattern* font, const char* family)
{
    FcChar8* name = nullptr;
    for (int i = 0; FcPatternGetString(font, FC_FAMILY, i, &name) == FcResultMatch; ++i)
        if (FcStrCmpIgnoreCase(name, FcText(family)) == 0)
            return true;
    return false;
}

struct ConfigDeleter {
    void operator()(FcConfig* config) const { FcConfigDestroy(config); }
};

// A reading of the system's fonts of our own: fontconfig's shared one would have to be closed while a toolkit may
// still use it.
FcConfig* InstalledFonts()
{
    static const std::unique_ptr<FcConfig, ConfigDeleter> config(FcInitLoadConfigAndFonts());
    return config.get();
}

// The upright font of normal weight closest to what the property asks for; there always is one where any font is. The
// user's substitutions and preferences are left out: fontconfig serves to find a file and nothing else.
PatternOwner Closest(const char* property, const char* value)
{
    const PatternOwner pattern(FcPatternCreate());
    if (!pattern || !InstalledFonts() || !FcPatternAddString(pattern.get(), property, FcText(value))
        || !FcPatternAddInteger(pattern.get(), FC_WEIGHT, FC_WEIGHT_NORMAL)
        || !FcPatternAddInteger(pattern.get(), FC_SLANT, FC_SLANT_ROMAN))
        return nullptr;
    FcResult result = FcResultNoMatch;
    return PatternOwner(FcFontMatch(InstalledFonts(), pattern.get(), &result));
}

PatternOwner ClosestOfFamily(const char* family)
{
    PatternOwner font = Closest(FC_FAMILY, family);
    return font && IsOfFamily(font.get(), family) ? std::move(font) : nullptr;
}

std::optional<FontFile> FileOf(const PatternOwner& font)
{
    FcChar8* file = nullptr;
    int index = 0;
    if (!font || FcPatternGetString(font.get(), FC_FILE, 0, &file) != FcResultMatch)
        return std::nullopt;
    FcPatternGetInteger(font.get(), FC_INDEX, 0, &index);
    // The upper half names a variation of the face.
    return FontFile { reinterpret_cast<const char*>(file), index & 0xFFFF };
}

} // namespace

const size_t fontChoices = std::size(families) + 1;

std::optional<FontFile> FindFont(size_t choice)
{
    if (choice >= fontChoices)
        return std::nullopt;
    return FileOf(choice < std::size(families) ? ClosestOfFamily(families[choice]) : Closest(FC_LANG, "zh-tw"));
}

std::optional<NarrowFont> FindNarrowFont()
{
    for (const NarrowFamily& family : narrowFamilies)
        if (auto file = FileOf(ClosestOfFamily(family.name)))
            return NarrowFont { std::move(*file), family.pixelSize };
    return std::nullopt;
}

} // namespace platform
