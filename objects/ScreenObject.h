#pragma once

#include "objects/vec.h"

#include <cstdint>

constexpr int32_t ScreenWidth = 800;
constexpr int32_t ScreenHeight = 600;

enum ObjectKind : int32_t {
    KindNone = 1000,
    KindPicture = 1001,
    KindButton = 1002,
    KindAnimation = 1003,
    KindWord = 1004,
    KindCheckBox = 1005,
    KindSelectbox = 1006,
};

enum EffectKind : uint32_t {
    EffectNone = 3000,
    EffectFromLeft = 3001,
    EffectFromRight = 3002,
    EffectFromTop = 3003,
    EffectFromBottom = 3004,
    EffectFadeOut = 3005,
};

// Mouse messages as objects get them; made from the window's own.
enum ObjectMessage : uint32_t { MsgRightDown = 1, MsgLeftDown = 3, MsgLeftUp = 4, MsgMouseMove = 6 };

// One thing on the screen: a picture, button, animation, word, check box or select box. The document fits it to the
// canvas and drives it through the four virtual operations without knowing its kind. Copying an object copies its
// fields; what it loaded or built is made anew for the copy before it is drawn (see Loaded).
class ScreenObject {
public:
    virtual ~ScreenObject() = default;

    // Draws the visible part into the 555 canvas, whose rows are `pitch` bytes apart. False when there is nothing to
    // draw or nowhere to draw it.
    virtual bool Draw(uint16_t* dest, int32_t pitch) = 0;
    // `lParam` holds the pointer: x in its low, y in its high 16 bits, both signed; no kind looks at `wParam`. True
    // when the message concerned the object.
    virtual bool HandleMessage(ObjectMessage msg, uint32_t wParam, uint32_t lParam) = 0;
    // Whether the point (canvas pixels) falls on the object; `screen` is the size of the caller's screen.
    virtual bool HitTest(vec point, vec screen) = 0;
    // Whether the point falls on an opaque pixel of the object.
    virtual bool PixelHit(vec point) = 0;
    // Releases what was loaded or built and puts every field back to the kind's default.
    virtual void Reset() = 0;

    ObjectKind GetKind() const { return kind; }
    void SetKind(ObjectKind newKind) { kind = newKind; }
    // Canvas position of the top-left corner of the part that is drawn.
    vec GetPos() const { return pos; }
    void SetPos(vec newPos) { pos = newPos; }
    // Offset of the first drawn pixel inside the picture; not 0 only while the object hangs over the left or top edge.
    vec GetSrc() const { return src; }
    void SetSrc(vec newSrc) { src = newSrc; }
    // The full extent; what it measures is the kind's own.
    vec GetSize() const { return size; }
    // Extent of the part that is drawn, after fitting to the canvas.
    vec GetView() const { return view; }
    void SetView(vec newView) { view = newView; }
    // Place in the drawing order, 0 at the bottom.
    int32_t GetLayer() const { return layer; }
    void SetLayer(int32_t newLayer) { layer = newLayer; }
    // Whether the document keeps the object wholly inside the canvas (else it crops it). Setting also makes `view` the
    // full `size`.
    bool GetBoundaryCheck() const { return boundaryCheck; }
    void SetBoundaryCheck(bool check)
    {
        boundaryCheck = check;
        view = size;
    }
    // 0 to 255; 255 is opaque. Of a larger number, as a script may hold, drawing takes the low byte.
    uint32_t GetAlpha() const { return alpha; }
    void SetAlpha(uint32_t newAlpha) { alpha = newAlpha; }
    EffectKind GetEffect() const { return effect; }
    void SetEffect(EffectKind newEffect) { effect = newEffect; }
    bool GetEffectRunning() const { return effectRunning; }
    void SetEffectRunning(bool running) { effectRunning = running; }

protected:
    ScreenObject() = default;
    ScreenObject(const ScreenObject&) = default;
    ScreenObject& operator=(const ScreenObject&) = default;

    ObjectKind kind = KindNone;
    vec pos { 0, 0 };
    vec src { 0, 0 };
    vec size { 0, 0 };
    vec view { 0, 0 };
    int32_t layer = 0;
    bool boundaryCheck = false;
    uint32_t alpha = 255;
    EffectKind effect = EffectNone;
    bool effectRunning = false;
};
