#include "objects/ClipObject.h"

#include <algorithm>
#include <limits>

namespace {

// One axis of the fitting, in numbers wide enough for any position and size.
struct Axis {
    int64_t pos;
    int64_t src;
    int64_t size;
    int64_t canvas;
    int64_t view = size;
};

int64_t Overhang(const Axis& axis)
{
    return std::max(int64_t { 0 }, -axis.pos);
}

// Cuts the object at the canvas edges.
void Crop(Axis& x, Axis& y)
{
    for (Axis* axis : { &x, &y }) {
        if (axis->pos > 0)
            axis->src = 0;
    }
    if (Overhang(x) > 0 || Overhang(y) > 0) {
        x.src = Overhang(x);
        y.src = Overhang(y);
    }
    for (Axis* axis : { &x, &y }) {
        const int64_t far = std::min(axis->pos + axis->size, axis->canvas);
        axis->pos = std::clamp(axis->pos, int64_t { 0 }, axis->canvas);
        axis->view = std::min(far - axis->pos, axis->size - axis->src);
    }
}

void PushInside(Axis& x, Axis& y)
{
    bool outside = false;
    for (Axis* axis : { &x, &y }) {
        const int64_t near = std::clamp(axis->pos, int64_t { 0 }, axis->canvas);
        const int64_t far = std::min(axis->pos + axis->view, axis->canvas);
        outside = outside || far - near != axis->view;
        axis->src = 0;
    }
    for (Axis* axis : { &x, &y }) {
        const int64_t last = std::max(int64_t { 0 }, axis->canvas - axis->view);
        if (outside)
            axis->pos = std::clamp(axis->pos, int64_t { 0 }, last);
        axis->view = std::min(axis->view, axis->canvas);
    }
}

int32_t Saturate(int64_t value)
{
    using Limits = std::numeric_limits<int32_t>;
    return static_cast<int32_t>(std::clamp(value, int64_t { Limits::min() }, int64_t { Limits::max() }));
}

} // namespace

void ClipObject(ScreenObject& object, bool keepInside, vec canvasSize)
{
    const vec pos = object.GetPos();
    const vec src = object.GetSrc();
    const vec size = object.GetSize();
    Axis x { .pos = pos.x, .src = src.x, .size = size.x, .canvas = canvasSize.x };
    Axis y { .pos = pos.y, .src = src.y, .size = size.y, .canvas = canvasSize.y };
    if (keepInside)
        PushInside(x, y);
    else
        Crop(x, y);
    object.SetPos({ Saturate(x.pos), Saturate(y.pos) });
    object.SetSrc({ Saturate(x.src), Saturate(y.src) });
    object.SetView({ Saturate(std::max(int64_t { 0 }, x.view)), Saturate(std::max(int64_t { 0 }, y.view)) });
}
