#pragma once

#include "objects/ScreenObject.h"

// Fits pos, src and view of the object to the canvas of width W and height H; `view` starts from the full `size`.
//
// keepInside false, the object is cropped. What hangs over the left or top edge goes to `src`, and `pos` to the edge:
//
//                    +.....+
//                    :     :     src.y = -pos.y
//            +-------+-----+---------------------+
//            |       |     |                     |
//       +....+---+   +-----+              +------+...+
//       :    |   |                        |      |   :     view.x = W - pos.x
//       +....+---+        canvas          +------+...+
//    src.x = -pos.x         +-----+              |
//            |              |     |              |
//            +--------------+-----+--------------+
//                           :     :     view.y = H - pos.y
//                           +.....+
//
// The true position is pos - src. On an edge (pos 0) the offset of an earlier fitting stays, so that an object that is
// cropped again stays as it is. What lies wholly outside gets an empty view.
//
// keepInside true, the object is moved the least distance that brings it back, and `src` is (0, 0). A larger one than
// the canvas ends at 0 and is cut.
void ClipObject(ScreenObject& object, bool keepInside, vec canvasSize);
