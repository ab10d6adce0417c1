#include "objects/CheckBoxObject.h"

#include "objects/MessagePoint.h"

bool CheckBoxObject::Build()
{
    *box = std::make_unique<PictureObject>();
    (*box)->SetFileName(boxFile);
    static_cast<void>((*box)->Load());
    boxSize = { (*box)->GetSize().x, (*box)->GetSize().y / sections };

    label->reset();
    if (labelText.empty())
        return false;
    *label = std::make_unique<WordObject>();
    static_cast<void>((*label)->SetText(labelText)); // refuses nothing but an empty text
    labelSize = (*label)->GetSize();
    labelOffset = { boxSize.x + gap, 0 };
    size = { boxSize.x + labelSize.x + gap, boxSize.y };
    view = size;
    return true;
}

void CheckBoxObject::SetEnabled(bool enable)
{
    state = enable ? stateUnchecked : stateDisabled;
}

bool CheckBoxObject::Draw(uint16_t* dest, int32_t pitch)
{
    if (!IsBuilt() || !dest || pitch < 1)
        return false;
    (*box)->SetPos(pos);
    (*box)->SetView(boxSize);
    (*box)->SetSrc({ 0, boxSize.y * state });
    (*box)->Draw(dest, pitch);
    (*label)->SetPos(pos + labelOffset);
    (*label)->Draw(dest, pitch);
    return true;
}

bool CheckBoxObject::HandleMessage(ObjectMessage msg, uint32_t, uint32_t lParam)
{
    if (!IsBuilt() || msg != MsgLeftDown || state == stateDisabled)
        return false;
    (*box)->SetPos(pos);
    (*box)->SetView(boxSize);
    // No screen is that large: a box is never taken for a backdrop, which could not be ticked.
    if ((*box)->HitTest(MessagePoint(lParam), { 1000, 1000 }))
        state = state == stateChecked ? stateUnchecked : stateChecked;
    return false;
}

bool CheckBoxObject::HitTest(vec point, vec screen)
{
    if (!IsBuilt())
        return false;
    (*box)->SetPos(pos);
    (*box)->SetView(size);
    if ((*box)->HitTest(point, screen))
        return true;
    (*label)->SetPos(pos + labelOffset);
    return (*label)->HitTest(point, screen);
}

bool CheckBoxObject::PixelHit(vec)
{
    return false;
}

void CheckBoxObject::Reset()
{
    // The last known section size of the box outlives a reset.
    const vec keptBoxSize = boxSize;
    *this = CheckBoxObject();
    boxSize = keptBoxSize;
}
