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
    choices.Add(text);
    return true;
}

void SelectboxObject::RemoveString(int32_t index)
{
    if (index >= 0 && index < GetCount())
        choices.Remove(static_cast<size_t>(index));
}

std::string SelectboxObject::GetString(int32_t index) const
{
    return index >= 0 && index < GetCount() ? std::string(choices.Get(static_cast<size_t>(index))) : std::string();
}

std::vector<SelectboxChoice> SelectboxObject::GetChoices() const
{
    std::vector<SelectboxChoice> all;
    for (int32_t i = 0; i < GetCount(); ++i) {
        const std::string text = GetString(i);
        const WordObject* const word = shownWord->get();
        const bool isShown = i == current && word && word->GetText() == text;
        all.push_back({ isShown ? word : nullptr, wordOffsetInBox, text });
    }
    return all;
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

// Without choices that leaves 0 or -1.
void SelectboxObject::KeepCurrentInRange()
{
    const int32_t last = GetCount() - 1;
    if (current >= 0 && current <= last)
        return;
    const bool isBeforeFirst = current < 0;
    if (scroll != 0) // A held button stops at the end that it has passed,
        current = isBeforeFirst ? 0 : last;
    else // a single step goes round to the other one.
        current = isBeforeFirst ? last : 0;
}

// The word of the choice that is shown; null where there is no text.
WordObject* SelectboxObject::RenderCurrent()
{
    const std::string text = GetString(current);
    if (text.empty())
        return nullptr;
    if (!*shownWord || (*shownWord)->GetText() != text) {
        *shownWord = std::make_unique<WordObject>();
        static_cast<void>((*shownWord)->SetText(text)); // refuses nothing but an empty text
    }
    return shownWord->get();
}

bool SelectboxObject::Draw(uint16_t* dest, int32_t pitch)
{
    RepeatHeldStep();
    PlaceParts();
    DrawPart(editPicture->get(), dest, pitch);
    DrawPart(upButton->get(), dest, pitch);
    DrawPart(downButton->get(), dest, pitch);
    KeepCurrentInRange();
    if (WordObject* const word = RenderCurrent()) {
        word->SetPos(pos + wordOffsetInBox);
        word->Draw(dest, pitch);
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
