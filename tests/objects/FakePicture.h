#pragma once

#include "objects/CanvasDrawing.h"
#include "objects/PictureObject.h"

#include <vector>

// An object of a given extent without a picture, which notes how it was drawn and is hit in its whole rectangle.
class FakePicture : public PictureObject {
public:
    using Log = std::vector<FakePicture>; // copies, as they were at that moment

    FakePicture(vec place, vec extent, Log* drawings = nullptr)
        : log(drawings)
    {
        pos = place;
        size = view = extent;
    }
    bool Draw(uint16_t*, int32_t) override
    {
        if (log)
            log->push_back(*this);
        return true;
    }
    bool HitTest(vec point, vec) override { return CoversPoint(pos, view, point); }

private:
    Log* log;
};
