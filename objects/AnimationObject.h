#pragma once

#include "objects/PictureObject.h"

#include <cstdint>

// An animation: a strip of equal frames shown one after the other in one place. A play-through shows every frame once
// and stops on the first. `size` is the whole strip; once it has been drawn, `src` is (0, 0) and `view` as much of a
// whole frame as the canvas shows.
class AnimationObject : public PictureObject {
public:
    // What GetTick tells until the first Play, and again after a Restart or the end of a play-through.
    static constexpr uint32_t neverStarted = 0xFFFFFFFF;

    // Moves on by at most one frame when its time is over, places the frame as FitFrame does, and draws it whole but
    // for what lies right of or below the canvas. Time goes on although nothing is loaded or there is no canvas.
    bool Draw(uint16_t* dest, int32_t pitch) override;
    bool HitTest(vec point, vec screen) override;
    void Reset() override;

    // The part of Draw that places the frame: wholly on the canvas, except that stacked frames are cut at its right
    // edge and frames side by side at its bottom, where the fitting has left them. Unloaded ones stay.
    void FitFrame();

    // Starts, or goes on where Pause stopped. All three make the animation opaque.
    void Play();
    void Pause();
    // Rewinds and stops. Always true.
    bool Restart();
    bool IsPlaying() const { return playing; }

    // Number of frames; stores at least 1. A frame past the new end becomes the last one.
    void SetSections(int32_t count);
    int32_t GetSections() const { return sections; }
    // Time per frame in milliseconds; any number is safe.
    void SetInterval(float milliseconds) { interval = milliseconds; }
    float GetInterval() const { return interval; }
    int32_t GetFrame() const { return frame; }
    // Playing: the tick count at which the frame began. Paused: the milliseconds spent in it.
    uint32_t GetTick() const { return tick; }

private:
    bool IsSideBySide() const { return size.x > size.y; }
    void Advance();
    vec FrameSize() const;
    void SetFrameView();
    void KeepOnScreen();

    int32_t sections = 8;
    int32_t frame = 0;
    float interval = 50.0F;
    bool playing = false;
    uint32_t tick = neverStarted;
};
