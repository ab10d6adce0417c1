#include "objects/AnimationObject.h"

#include "objects/CanvasDrawing.h"
#include "platform/Kernel.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr uint32_t opaque = 255;

// Cut to a whole number, so that a frame begins up to a millisecond early after a fractional interval; in double
// precision, because a float cannot hold every tick. The clock wraps around at 2^32, whatever the interval. An endless
// interval leaves the tick as it is.
uint32_t AddToTick(uint32_t tick, float interval)
{
    constexpr double ticksPerTurn = 4294967296.0;
    const double whole = std::trunc(double { interval } + tick);
    if (!std::isfinite(whole))
        return tick;
    const double inTurn = std::fmod(whole, ticksPerTurn);
    return static_cast<uint32_t>(inTurn < 0 ? inTurn + ticksPerTurn : inTurn);
}

// Where an extent at `pos` lies on an axis of the screen: pushed back from the far edge, never past the near one.
int32_t KeepInside(int32_t pos, int32_t extent, int32_t screen)
{
    const int64_t furthest = std::max(int64_t { 0 }, int64_t { screen } - extent);
    return static_cast<int32_t>(std::min(int64_t { std::max(pos, 0) }, furthest));
}

} // namespace

void AnimationObject::Play()
{
    playing = true;
    alpha = opaque;
    const uint32_t now = GetTickCount();
    tick = tick == neverStarted ? now : now - tick;
}

void AnimationObject::Pause()
{
    playing = false;
    alpha = opaque;
    tick = GetTickCount() - tick;
}

bool AnimationObject::Restart()
{
    frame = 0;
    tick = neverStarted;
    alpha = opaque;
    playing = false;
    return true;
}

void AnimationObject::SetSections(int32_t count)
{
    sections = std::max(count, 1);
    frame = std::min(frame, sections - 1);
}

// One frame at most, however much time has passed: a late animation slows down and skips nothing.
void AnimationObject::Advance()
{
    if (!playing || !(GetTickCount() - tick >= double { interval }))
        return;
    tick = AddToTick(tick, interval);
    ++frame;
    if (frame >= sections)
        Restart();
}

bool AnimationObject::Draw(uint16_t* dest, int32_t pitch)
{
    Advance();
    SetFrameView();
    if (!dest || pitch < 1 || !GetPicture())
        return false;
    KeepOnScreen();
    const vec frameSize = FrameSize();
    const vec first = IsSideBySide() ? vec { frame * frameSize.x, 0 } : vec { 0, frame * frameSize.y };
    return DrawOnCanvas(GetPicture(), dest, pitch, pos, first, frameSize, alpha);
}

void AnimationObject::FitFrame()
{
    SetFrameView();
    if (GetPicture())
        KeepOnScreen();
}

vec AnimationObject::FrameSize() const
{
    return IsSideBySide() ? vec { size.x / sections, size.y } : vec { size.x, size.y / sections };
}

// The other component stays as the fitting has left it.
void AnimationObject::SetFrameView()
{
    if (IsSideBySide())
        view.x = FrameSize().x;
    else
        view.y = FrameSize().y;
}

// What the fitting has left of the strip decides the place. There the frame is shown whole, without the offset of the
// fitting: an animation is never cut at its left or top, and cut by the canvas alone at its right or bottom.
void AnimationObject::KeepOnScreen()
{
    pos = { KeepInside(pos.x, view.x, ScreenWidth), KeepInside(pos.y, view.y, ScreenHeight) };
    src = { 0, 0 };
    const vec frameSize = FrameSize();
    view = { std::clamp(ScreenWidth - pos.x, 0, frameSize.x), std::clamp(ScreenHeight - pos.y, 0, frameSize.y) };
}

// A square strip is hit over its whole height although only its top frame is drawn.
bool AnimationObject::HitTest(vec point, vec)
{
    const int32_t height = size.x >= size.y ? size.y : size.y / sections;
    return IsLoaded() && CoversPoint(pos, { view.x, height }, point);
}

void AnimationObject::Reset()
{
    *this = AnimationObject();
}
