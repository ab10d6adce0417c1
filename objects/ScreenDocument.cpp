#include "objects/ScreenDocument.h"

#include "objects/AnimationObject.h"
#include "objects/ButtonObject.h"
#include "objects/CheckBoxObject.h"
#include "objects/ClipObject.h"
#include "objects/PictureObject.h"
#include "objects/SelectboxObject.h"
#include "objects/WordObject.h"
#include "platform/Big5Literal.h"
#include "platform/Kernel.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace {

void LogLayer(const char* before, int32_t layer, const char* after)
{
    char text[260];
    std::snprintf(text, sizeof text, "%s%d%s", before, layer, after);
    OutputDebugStringA(text);
}

bool LiesBetween(vec point, vec a, vec b)
{
    return point > a && point < b;
}

} // namespace

ScreenDocument::ScreenDocument()
    : canvas(std::make_unique<uint16_t[]>(size_t { ScreenWidth } * ScreenHeight))
{
}

ScreenDocument::~ScreenDocument() = default;

void ScreenDocument::Add(std::unique_ptr<ScreenObject> object, ObjectKind kind)
{
    object->SetLayer(layerCount++);
    object->SetKind(kind);
    objects.push_back(std::move(object));
    effects.OnObjectAdded();
}

void ScreenDocument::AddPicture(std::unique_ptr<PictureObject> picture)
{
    Add(std::move(picture), KindPicture);
}

void ScreenDocument::AddButton(std::unique_ptr<ButtonObject> button)
{
    Add(std::move(button), KindButton);
}

void ScreenDocument::AddAnimation(std::unique_ptr<AnimationObject> animation)
{
    Add(std::move(animation), KindAnimation);
}

void ScreenDocument::AddWord(std::unique_ptr<WordObject> word)
{
    Add(std::move(word), KindWord);
}

void ScreenDocument::AddCheckBox(std::unique_ptr<CheckBoxObject> checkBox)
{
    Add(std::move(checkBox), KindCheckBox);
}

void ScreenDocument::AddSelectbox(std::unique_ptr<SelectboxObject> selectbox)
{
    Add(std::move(selectbox), KindSelectbox);
}

void ScreenDocument::AddBackground(std::unique_ptr<PictureObject> background)
{
    backgrounds.push_back(std::move(background));
}

bool ScreenDocument::GetObject(int32_t index, ScreenObject*& object) const
{
    const bool found = index >= 0 && index < GetObjectCount();
    object = found ? objects[static_cast<size_t>(index)].get() : nullptr;
    return found;
}

int32_t ScreenDocument::FirstOnLayer(int32_t layer) const
{
    const auto found = std::find_if(
        objects.begin(), objects.end(), [layer](const auto& object) { return object->GetLayer() == layer; });
    return found == objects.end() ? -1 : static_cast<int32_t>(found - objects.begin());
}

bool ScreenDocument::IndexOfLayer(int32_t layer, int32_t& index) const
{
    index = FirstOnLayer(layer);
    return index >= 0;
}

// Backwards, so that the first object in list order has the last word.
std::vector<int32_t> ScreenDocument::IndicesByLayer() const
{
    std::vector<int32_t> indices(static_cast<size_t>(layerCount), -1);
    for (int32_t index = GetObjectCount() - 1; index >= 0; --index) {
        const int32_t layer = objects[static_cast<size_t>(index)]->GetLayer();
        if (layer >= 0 && layer < layerCount)
            indices[static_cast<size_t>(layer)] = index;
    }
    return indices;
}

bool ScreenDocument::FindObjectAt(vec point, int32_t& index) const
{
    const std::vector<int32_t> indices = IndicesByLayer();
    for (auto topmost = indices.rbegin(); topmost != indices.rend() && *topmost >= 0; ++topmost) {
        index = *topmost;
        if (objects[static_cast<size_t>(index)]->HitTest(point, { ScreenWidth, ScreenHeight }))
            return true;
    }
    index = -1;
    return false;
}

bool ScreenDocument::GetObjectAt(ScreenObject*& object, vec point) const
{
    int32_t index = -1;
    FindObjectAt(point, index);
    return GetObject(index, object);
}

bool ScreenDocument::IsObjectInRect(int32_t index, vec a, vec b) const
{
    ScreenObject* object = nullptr;
    if (!GetObject(index, object))
        return false;
    const vec p = object->GetPos();
    const vec v = object->GetView();
    const vec corners[] = { p, p + vec(v.x, 0), p + v, p + vec(0, v.y) };
    const bool cornerInside
        = std::any_of(std::begin(corners), std::end(corners), [a, b](vec corner) { return LiesBetween(corner, a, b); });
    return cornerInside && LiesBetween(p + v / 2, a, b);
}

// findOnLayer(layer) is what FirstOnLayer finds.
template <class FindOnLayer>
bool ScreenDocument::PassNeighbour(ScreenObject& object, bool down, FindOnLayer findOnLayer)
{
    const int32_t layer = object.GetLayer();
    if (layer == (down ? 0 : layerCount - 1))
        return false;
    const int32_t neighbourLayer = down ? layer - 1 : layer + 1;
    const int32_t neighbour = findOnLayer(neighbourLayer);
    if (neighbour < 0)
        return false;
    objects[static_cast<size_t>(neighbour)]->SetLayer(layer);
    object.SetLayer(neighbourLayer);
    return true;
}

bool ScreenDocument::MoveLayer(int32_t index, bool down)
{
    ScreenObject* object = nullptr;
    return GetObject(index, object)
        && PassNeighbour(*object, down, [this](int32_t layer) { return FirstOnLayer(layer); });
}

void ScreenDocument::MoveToEnd(int32_t index, bool down)
{
    ScreenObject* object = nullptr;
    if (!GetObject(index, object))
        return;
    // Whatever is passed takes a layer behind, so that what was found for the layers ahead stays true.
    const std::vector<int32_t> indices = IndicesByLayer();
    const auto lookUp = [&indices, this](int32_t layer) {
        return layer >= 0 && layer < layerCount ? indices[static_cast<size_t>(layer)] : FirstOnLayer(layer);
    };
    while (PassNeighbour(*object, down, lookUp)) { }
}

bool ScreenDocument::RemoveObject(int32_t index)
{
    ScreenObject* removed = nullptr;
    if (!GetObject(index, removed))
        return false;
    const int32_t layer = removed->GetLayer();
    objects.erase(objects.begin() + index);
    for (const auto& object : objects) {
        if (object->GetLayer() > layer)
            object->SetLayer(object->GetLayer() - 1);
    }
    --layerCount;

    effects.OnObjectRemoved(index);
    return true;
}

void ScreenDocument::Clear()
{
    objects.clear();
    effects.Clear();
    layerCount = 0;
    std::fill_n(canvas.get(), size_t { ScreenWidth } * ScreenHeight, uint16_t { 0 });
}

bool ScreenDocument::Dispatch(ObjectMessage msg, uint32_t wParam, uint32_t lParam)
{
    for (const auto& object : objects)
        object->HandleMessage(msg, wParam, lParam);
    return true;
}

const uint16_t* ScreenDocument::Render()
{
    // A background keeps its place: cropping what is cropped changes nothing.
    for (const auto& background : backgrounds) {
        ClipObject(*background, false);
        background->Draw(canvas.get(), pitch);
    }
    const std::vector<int32_t> indices = IndicesByLayer();
    for (int32_t layer = 0; layer < layerCount; ++layer) {
        const int32_t index = indices[static_cast<size_t>(layer)];
        ScreenObject* object = nullptr;
        if (index < 0) {
            LogLayer(" Layer ", layer, " is no object\n");
        } else if (!GetObject(index, object)) {
            LogLayer(u8"無法取得 Pointer 的處理方式, Layer "_big5, layer, "");
        } else if (object->GetEffectRunning()) {
            effects.Step(index, *object, canvas.get(), pitch);
        } else {
            FitObject(*object);
            object->Draw(canvas.get(), pitch);
        }
    }
    effects.DropFinished();
    return canvas.get();
}

// Animations are always cropped; they keep themselves on the screen when they draw.
void ScreenDocument::FitObject(ScreenObject& object) const
{
    ClipObject(object, object.GetKind() != KindAnimation && object.GetBoundaryCheck());
}

void ScreenDocument::FitAll()
{
    for (const auto& object : objects) {
        FitObject(*object);
        if (auto* animation = dynamic_cast<AnimationObject*>(object.get()))
            animation->FitFrame();
    }
}

void ScreenDocument::ClipObject(ScreenObject& object, bool keepInside) const
{
    ::ClipObject(object, keepInside, canvasSize);
}

void ScreenDocument::StartEffect(int32_t index)
{
    ScreenObject* object = nullptr;
    if (GetObject(index, object) && object->GetEffect() != EffectNone && !object->GetEffectRunning())
        effects.Start(index, *object);
}

void ScreenDocument::StepEffect(int32_t index)
{
    ScreenObject* object = nullptr;
    if (!GetObject(index, object))
        return;
    effects.Step(index, *object, canvas.get(), pitch);
    effects.DropFinished();
}

void ScreenDocument::FinishEffects()
{
    effects.FinishAll(objects);
}
