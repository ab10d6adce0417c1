#include "objects/SelectboxObject.h"

#include "objects/MessagePoint.h"
#include "platform/Kernel.h"

#include <algorithm>

namespace {

constexpr uint32_t repeatDelayMs = 300;
constexpr vec wordOffsetInBox { 5, 5 };
// Where the buttons sit in the edit box.
constexpr int32_t rightMargin = 2;
constexpr int32_t topMargin = 1;
constexpr int32_t downButtonMargin = 3;

// Makes one part from its file; the part stays unloaded when the picture is missing.
template <class Part> std::unique_ptr<Part> MakePart(std::string& file, const char* builtInFile)
{
    if (file.empty())
        file = builtInFile;
    auto part = std::make_unique<Part>();
    part->SetFileName(file);
    static_cast<void>(part->Load());
    return part;
}

void Place(PictureObject* part, vec pos, vec view)
{
    if (!part)
        return;
    part->SetPos(pos);
    part->SetView(view);
}

bool Tell(PictureObject* part, ObjectMessage msg, uint32_t wParam, uint32_t lParam)
{
    return part && part->HandleMessage(msg, wParam, lParam);
}

void DrawPart(PictureObject* part, uint16_t* dest, int32_t pitch)
{
    if (part)
        part->Draw(dest, pitch);
}

} // namespace

SelectboxChoice::SelectboxChoice(const std::string& choiceText, vec wordOffset)
    : offset(wordOffset)
    , text(choiceText)
{
    if (text.empty())
        return;
    word = std::make_unique<WordObject>();
    word->SetText(text);
}

bool SelectboxObject::Build()
{
    *editPicture = MakePart<PictureObject>(editFile, "EditBox.bmp");
    editSize = (*editPicture)->GetSize();
    *upButton = MakePart<ButtonObject>(upFile, "upbutton.bmp");
    upSize = (*upButton)->GetSize();
    upOffset = { editSize.x - upSize.x - rightMargin, topMargin };
    *downButton = MakePart<ButtonObject>(downFile, "downbutton.bmp");
    downSize = (*downButton)->GetSize();
    downOffset = { upOffset.x, downSize.y + downButtonMargin };
    size = editSize;
    view = size;
    return true;
}

bool SelectboxObject::AddString(const std::string& text)
{
    choices.emplace_back(text, wordOffsetInBox);
    return true;
}

void SelectboxObject::RemoveString(int32_t index)
{
    if (index >= 0 && index < GetCount())
        choices.erase(choices.begin() + index);
}

const std::string& SelectboxObject::GetString(int32_t index) const
{
    static const std::string none;
    return index >= 0 && index < GetCount() ? choices[static_cast<size_t>(index)].text : none;
}

void SelectboxObject::PlaceParts()
{
    Place(editPicture->get(), pos, editSize);
    Place(upButton->get(), pos + upOffset, upSize);
    Place(downButton->get(), pos + downOffset, downSize);
}

bool SelectboxObject::HandleMessage(ObjectMessage msg, uint32_t wParam, uint32_t lParam)
{
    PlaceParts();
    const bool edit = Tell(editPicture->get(), msg, wParam, lParam);
    const bool up = Tell(upButton->get(), msg, wParam, lParam);
    const bool down = Tell(downButton->get(), msg, wParam, lParam);
    if (msg == MsgLeftUp)
        scroll = 0;
    if (msg != MsgLeftDown)
        return false;

    scroll = up ? -1 : (down ? 1 : 0);
    if (scroll == 0)
        return edit;
    scrollTick = GetTickCount();
    current += scroll;
    return true;
}

void SelectboxObject::RepeatHeldStep()
{
    const uint32_t now = GetTickCount();
    if (scroll == 0 || now - scrollTick <= repeatDelayMs)
        return;
    scrollTick = now;
    current += scroll;
}

// A held button stops at the ends of the list, single steps go round. Without choices that leaves 0 or -1.
void SelectboxObject::KeepCurrentInRange()
{
    const int32_t last = GetCount() - 1;
    if (current >= 0 && current <= last)
        return;
    const bool before = current < 0;
    const bool held = scroll != 0;
    current = before == held ? 0 : last;
}

bool SelectboxObject::Draw(uint16_t* dest, int32_t pitch)
{
    RepeatHeldStep();
    PlaceParts();
    DrawPart(editPicture->get(), dest, pitch);
    DrawPart(upButton->get(), dest, pitch);
    DrawPart(downButton->get(), dest, pitch);
    KeepCurrentInRange();
    if (!choices.empty()) {
        const SelectboxChoice& choice = choices[static_cast<size_t>(current)];
        if (choice.word) {
            choice.word->SetPos(pos + choice.offset);
            choice.word->Draw(dest, pitch);
        }
    }
    return dest && pitch >= 1;
}

bool SelectboxObject::HitTest(vec point, vec screen)
{
    if (!*editPicture)
        return false;
    Place(editPicture->get(), pos, editSize);
    return (*editPicture)->HitTest(point, screen);
}

bool SelectboxObject::PixelHit(vec)
{
    return false;
}

void SelectboxObject::Reset()
{
    // The last known size of the edit box outlives a reset.
    const vec keptEditSize = editSize;
    *this = SelectboxObject();
    editSize = keptEditSize;
}
