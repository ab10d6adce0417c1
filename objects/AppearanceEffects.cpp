#include "objects/AppearanceEffects.h"

#include "objects/ScreenDocument.h"
#include "platform/Kernel.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int32_t pixelsPerStep = 10;

// Steps for a way of so many pixels. What is left over of the way is made up for when the effect finishes.
int32_t StepsFor(int64_t way)
{
    return static_cast<int32_t>(std::abs(way / pixelsPerStep));
}

// Fills in the way from outside the canvas to where the object is.
void PlanSlide(EffectRecord& record, const ScreenObject& object, vec canvasSize)
{
    const vec pos = object.GetPos();
    const vec src = object.GetSrc();
    const vec outside = vec(0, 0) - object.GetView() - src;
    switch (record.effectKind) {
    case EffectFromTop:
        record.delta = { 0, pixelsPerStep };
        record.start = { record.end.x, outside.y };
        record.steps = StepsFor(int64_t { pos.y } - outside.y - src.y);
        break;
    case EffectFromBottom:
        record.delta = { 0, -pixelsPerStep };
        record.start = { record.end.x, canvasSize.y };
        record.steps = StepsFor(int64_t { pos.y } - canvasSize.y);
        break;
    case EffectFromLeft:
        record.delta = { pixelsPerStep, 0 };
        record.start = { outside.x, record.end.y };
        record.steps = StepsFor(int64_t { pos.x } - outside.x - src.x);
        break;
    case EffectFromRight:
        // The row is the one that is drawn, not the true position's as on the other three sides.
        record.delta = { -pixelsPerStep, 0 };
        record.start = { canvasSize.x, pos.y };
        record.steps = StepsFor(int64_t { pos.x } - canvasSize.x);
        break;
    case EffectNone:
    case EffectFadeOut:
        break;
    }
}

} // namespace

void ScreenDocument::StartEffect(int32_t index)
{
    ScreenObject* object = nullptr;
    if (!GetObject(index, object) || object->GetEffect() == EffectNone || object->GetEffectRunning())
        return;
    EffectRecord record;
    record.index = index;
    record.effectKind = object->GetEffect();
    record.end = object->GetPos() - object->GetSrc();
    record.lastTick = GetTickCount();
    object->SetEffectRunning(true);
    PlanSlide(record, *object, canvasSize);
    KeepEffect(record);
}

// An object has one record at most.
void ScreenDocument::KeepEffect(const EffectRecord& record)
{
    DropEffect(record.index);
    effectPlaces[static_cast<size_t>(record.index)] = static_cast<int32_t>(effects.size());
    effects.push_back(record);
}

// The last record takes the free place.
void ScreenDocument::DropEffect(int32_t index)
{
    int32_t& place = effectPlaces[static_cast<size_t>(index)];
    if (place < 0)
        return;
    EffectRecord& dropped = effects[static_cast<size_t>(place)];
    dropped = effects.back();
    effectPlaces[static_cast<size_t>(dropped.index)] = place;
    effects.pop_back();
    place = -1;
}

void ScreenDocument::StepEffect(int32_t index)
{
    ScreenObject* object = nullptr;
    if (!GetObject(index, object))
        return;
    const int32_t place = effectPlaces[static_cast<size_t>(index)];
    if (place < 0) {
        object->SetEffectRunning(false);
        return;
    }
    EffectRecord* const record = &effects[static_cast<size_t>(place)];
    const uint32_t now = GetTickCount();
    if (static_cast<double>(now - record->lastTick) < static_cast<double>(record->interval))
        return;
    record->lastTick = now;

    if (record->step > record->steps || record->effectKind == EffectNone) {
        PutAtEnd(*object, *record);
        object->Draw(canvas.get(), pitch);
        DropEffect(index);
        return;
    }
    // Fading out has no motion and no end: the object stays hidden while its record lives.
    if (record->effectKind == EffectFadeOut)
        return;
    // At a position of exactly 0 the cut of the step before stays, as in every fitting.
    object->SetPos(record->start + record->delta * record->step);
    ClipObject(*object, false);
    object->Draw(canvas.get(), pitch);
    ++record->step;
}

void ScreenDocument::FinishEffects()
{
    for (const EffectRecord& record : effects) {
        ScreenObject* object = nullptr;
        if (!GetObject(record.index, object))
            continue;
        object->SetSrc({ 0, 0 }); // the cut of a step half-way would stay at a position of exactly 0
        PutAtEnd(*object, record);
    }
    effects.clear();
    std::ranges::fill(effectPlaces, -1);
}

void ScreenDocument::PutAtEnd(ScreenObject& object, const EffectRecord& record) const
{
    object.SetEffectRunning(false);
    object.SetPos(record.end);
    ClipObject(object, object.GetBoundaryCheck());
}
