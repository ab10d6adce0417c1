#include "objects/ButtonObject.h"

#include "objects/CanvasDrawing.h"
#include "objects/MessagePoint.h"

#include <algorithm>

namespace {

constexpr int32_t lookNormal = 0;
constexpr int32_t lookHover = 1;
constexpr int32_t lookPressed = 2;

} // namespace

bool ButtonObject::Load()
{
    if (!LoadPicture())
        return false;
    CutSections();
    view = size;
    return BuildMask();
}

void ButtonObject::SetSections(int32_t count)
{
    sections = std::max(count, 1);
    if (GetPicture())
        CutSections();
}

void ButtonObject::CutSections()
{
    const vec picture { SPic16X_::Width_(GetPicture()), SPic16X_::Height_(GetPicture()) };
    if (fileName.find('@') != std::string::npos)
        vertical = false;
    else if (fileName.find('!') != std::string::npos)
        vertical = true;
    else
        vertical = picture.x <= picture.y;
    size = vertical ? vec { picture.x, picture.y / sections } : vec { picture.x / sections, picture.y };
}

bool ButtonObject::Draw(uint16_t* dest, int32_t pitch)
{
    // A picture with fewer sections than looks shows its last section for the missing ones.
    const int32_t shown = std::min(section, sections - 1);
    const vec step = vertical ? vec { 0, size.y } : vec { size.x, 0 };
    return DrawOnCanvas(GetPicture(), dest, pitch, pos, src + step * shown, view, alpha);
}

bool ButtonObject::HandleMessage(ObjectMessage msg, uint32_t, uint32_t lParam)
{
    const bool inside = HitTest(MessagePoint(lParam), { ScreenWidth, ScreenHeight });
    switch (msg) {
    case MsgLeftDown:
        section = inside ? lookPressed : lookNormal;
        return inside;
    case MsgLeftUp:
        if (section != lookPressed)
            return false;
        section = inside ? lookHover : lookNormal;
        return inside;
    case MsgMouseMove:
        if (section != lookPressed)
            section = inside ? lookHover : lookNormal;
        return inside;
    case MsgRightDown:
        break;
    }
    return false;
}

bool ButtonObject::HitTest(vec point, vec)
{
    return IsLoaded() && CoversPoint(pos, size, point);
}

void ButtonObject::Reset()
{
    *this = ButtonObject();
}
