#include "objects/WordObject.h"

#include "objects/CanvasDrawing.h"
#include "platform/Gdi.h"

namespace {

constexpr int fontCellHeight = 14;
constexpr DWORD defaultCharSet = 1;
constexpr DWORD notAntialiased = 3;
constexpr DWORD variablePitch = 2;
constexpr int32_t letterSpacing = 1;

} // namespace

WordFont::WordFont()
    : font(CreateFontA(
        fontCellHeight, 0, 0, 0, 0, FALSE, FALSE, FALSE, defaultCharSet, 0, 0, notAntialiased, variablePitch, nullptr))
{
}

void WordFont::Deleter::operator()(platform::Font* handle) const
{
    DeleteObject(handle);
}

bool WordObject::SetText(const std::string& newText)
{
    text = newText;
    loaded->picture.reset();
    loaded->failure.problem = text.empty() ? LoadProblem::EmptyText : LoadProblem::None;
    if (text.empty())
        return false;
    loaded->picture.reset(SPic16X_::NewText_(text.c_str(), GetFont(), textColor, keyColor, 1, letterSpacing));
    size = { SPic16X_::Width_(GetPicture()), SPic16X_::Height_(GetPicture()) };
    view = size;
    return true;
}

void WordObject::SetColor(uint32_t red, uint32_t green, uint32_t blue)
{
    textColor = SPic16X_::Color16_((red & 0xFF) | (green & 0xFF) << 8 | (blue & 0xFF) << 16);
}

bool WordObject::HitTest(vec point, vec)
{
    return GetPicture() && CoversPoint(pos, view, point);
}

void WordObject::Reset()
{
    *this = WordObject();
}
