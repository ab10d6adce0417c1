#pragma once

#include "objects/EffectRecord.h"
#include "objects/ScreenObject.h"

#include <cstdint>
#include <memory>
#include <vector>

// Plays the appearance effects of a screen's objects: each slides in from an edge, or vanishes. Objects are known by
// their index in the screen's list and have one running effect at most; the list's owner tells when it changes. Time is
// that of the tick counter.
class AppearanceEffects {
public:
    explicit AppearanceEffects(vec screenSize)
        : canvasSize(screenSize)
    {
    }

    // An object has joined the end of the list, has left it (the ones behind move up), or all have.
    void OnObjectAdded();
    void OnObjectRemoved(int32_t index);
    void Clear();

    // Starts the object's effect, which is not EffectNone and does not run yet. It ends where the object now is.
    void Start(int32_t index, ScreenObject& object);
    // When a step is due: places the object, fits it to the canvas and draws it. Otherwise, and while it fades out, the
    // object is not drawn. One without a running effect only loses its mark of one. A finished effect keeps its record,
    // with the index -1, until DropFinished: many may end in one frame.
    void Step(int32_t index, ScreenObject& object, uint16_t* canvas, int32_t pitch);
    void DropFinished();
    // Ends every running effect, a fade-out too, without drawing: the objects stand where they were when it started.
    void FinishAll(const std::vector<std::unique_ptr<ScreenObject>>& objects);

    // The running effects in the order in which they were started.
    const std::vector<EffectRecord>& GetRecords() const { return records; }

private:
    void PutAtEnd(ScreenObject& object, const EffectRecord& record) const;
    void MarkFinished(int32_t index);

    vec canvasSize;
    std::vector<EffectRecord> records;
    std::vector<int32_t> places; // by object index: the place of its record in `records`, or -1
    bool someFinished = false;
};
