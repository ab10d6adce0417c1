#include "objects/AppearanceEffects.h"

#include "objects/ClipObject.h"
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

bool IsDue(const EffectRecord& record, uint32_t now)
{
    return static_cast<double>(now - record.lastTick) >= static_cast<double>(record.interval);
}

} // namespace

void AppearanceEffects::OnObjectAdded()
{
    places.push_back(-1);
}

void AppearanceEffects::OnObjectRemoved(int32_t index)
{
    MarkFinished(index);
    DropFinished();
    places.erase(places.begin() + index);
    for (EffectRecord& record : records) {
        if (record.index > index)
            --record.index;
    }
}

void AppearanceEffects::Clear()
{
    records.clear();
    places.clear();
    someFinished = false;
}

// A record that somebody else's SetEffectRunning(false) has left behind makes room.
void AppearanceEffects::Start(int32_t index, ScreenObject& object)
{
    MarkFinished(index);
    DropFinished();
    EffectRecord record;
    record.index = index;
    record.effectKind = object.GetEffect();
    record.end = object.GetPos() - object.GetSrc();
    record.lastTick = GetTickCount();
    object.SetEffectRunning(true);
    PlanSlide(record, object, canvasSize);
    places[static_cast<size_t>(index)] = static_cast<int32_t>(records.size());
    records.push_back(record);
}

void AppearanceEffects::Step(int32_t index, ScreenObject& object, uint16_t* canvas, int32_t pitch)
{
    const int32_t place = places[static_cast<size_t>(index)];
    if (place < 0) {
        object.SetEffectRunning(false);
        return;
    }
    EffectRecord& record = records[static_cast<size_t>(place)];
    const uint32_t now = GetTickCount();
    if (!IsDue(record, now))
        return;
    record.lastTick = now;

    if (record.step > record.steps || record.effectKind == EffectNone) {
        PutAtEnd(object, record);
        object.Draw(canvas, pitch);
        MarkFinished(index);
        return;
    }
    // Fading out has no motion and no end: the object stays hidden while its record lives.
    if (record.effectKind == EffectFadeOut)
        return;
    // At a position of exactly 0 the cut of the step before stays, as in every fitting.
    object.SetPos(record.start + record.delta * record.step);
    ClipObject(object, false, canvasSize);
    object.Draw(canvas, pitch);
    ++record.step;
}

void AppearanceEffects::FinishAll(const std::vector<std::unique_ptr<ScreenObject>>& objects)
{
    DropFinished();
    for (const EffectRecord& record : records) {
        ScreenObject& object = *objects[static_cast<size_t>(record.index)];
        object.SetSrc({ 0, 0 }); // the cut of a step half-way would stay at a position of exactly 0
        PutAtEnd(object, record);
    }
    records.clear();
    std::ranges::fill(places, -1);
}

void AppearanceEffects::PutAtEnd(ScreenObject& object, const EffectRecord& record) const
{
    object.SetEffectRunning(false);
    object.SetPos(record.end);
    ClipObject(object, object.GetBoundaryCheck(), canvasSize);
}

void AppearanceEffects::MarkFinished(int32_t index)
{
    int32_t& place = places[static_cast<size_t>(index)];
    if (place < 0)
        return;
    records[static_cast<size_t>(place)].index = -1;
    place = -1;
    someFinished = true;
}

void AppearanceEffects::DropFinished()
{
    if (!someFinished)
        return;
    std::erase_if(records, [](const EffectRecord& record) { return record.index < 0; });
    for (size_t place = 0; place < records.size(); ++place)
        places[static_cast<size_t>(records[place].index)] = static_cast<int32_t>(place);
    someFinished = false;
}
