#pragma once

#include "objects/AppearanceEffects.h"
#include "objects/ScreenObject.h"
#include "objects/vec.h"

#include <cstdint>
#include <memory>
#include <vector>

class PictureObject;
class ButtonObject;
class AnimationObject;
class WordObject;
class CheckBoxObject;
class SelectboxObject;

// The screen being edited: its canvas, its backgrounds and its objects. An object's index is its place in the order of
// adding; its layer is its place in the drawing order. Layers are exactly 0 to the number of objects - 1.
class ScreenDocument {
public:
    ScreenDocument();
    ~ScreenDocument();
    ScreenDocument(const ScreenDocument&) = delete;
    ScreenDocument& operator=(const ScreenDocument&) = delete;

    // Each takes the object over and puts it on the top layer.
    void AddPicture(std::unique_ptr<PictureObject> picture);
    void AddButton(std::unique_ptr<ButtonObject> button);
    void AddAnimation(std::unique_ptr<AnimationObject> animation);
    void AddWord(std::unique_ptr<WordObject> word);
    void AddCheckBox(std::unique_ptr<CheckBoxObject> checkBox);
    void AddSelectbox(std::unique_ptr<SelectboxObject> selectbox);
    // Backgrounds lie under all objects, have no layer and are never hit.
    void AddBackground(std::unique_ptr<PictureObject> background);

    // Lookups. On false the out argument is null or -1. The document keeps owning the objects.
    bool GetObject(int32_t index, ScreenObject*& object) const;
    // The first object in list order on the layer.
    bool IndexOfLayer(int32_t layer, int32_t& index) const;
    // The object under a canvas point, topmost first; the search ends at a layer that no object holds.
    bool FindObjectAt(vec point, int32_t& index) const;
    bool GetObjectAt(ScreenObject*& object, vec point) const;
    // Whether a corner and the centre of the object's visible part lie strictly between a (top-left) and b.
    bool IsObjectInRect(int32_t index, vec a, vec b) const;
    int32_t GetLayerCount() const { return layerCount; }
    int32_t GetObjectCount() const { return static_cast<int32_t>(objects.size()); }

    // Exchanges layers with the object just below (`down`) or above. False at the end of the stack.
    bool MoveLayer(int32_t index, bool down);
    // MoveLayer until that is refused, in one pass over the objects: to the bottom (`down`) or to the top.
    void MoveToEnd(int32_t index, bool down);
    // Deletes the object; objects behind it in the list move one index down, those above it one layer down, and effect
    // records follow.
    bool RemoveObject(int32_t index);
    // Deletes every object and clears the canvas; the backgrounds stay.
    void Clear();
    // Hands the message to every object in list order. Always true.
    bool Dispatch(ObjectMessage msg, uint32_t wParam, uint32_t lParam);

    // Draws the backgrounds, then the objects from layer 0 up, and returns the canvas: 800 by 600 pixels in 555.
    // Fits every object first and advances running effects. The canvas is not cleared before.
    const uint16_t* Render();
    // Fits pos, src and view of the object to the canvas (see objects/ClipObject.h).
    void ClipObject(ScreenObject& object, bool keepInside) const;

    // Fits every object by its own rule, also one whose effect runs and that a frame would put elsewhere, and does
    // nothing else that a frame does. Afterwards no object lies at a negative position.
    void FitAll();

    // Starts the object's appearance effect; nothing for EffectNone, a running effect or a missing object.
    void StartEffect(int32_t index);
    // Advances the effect of an object and draws it when a step is due; one without an effect loses its mark of one.
    void StepEffect(int32_t index);
    // Ends every running effect, a fade-out too, without drawing: the objects stand where they were when it started.
    void FinishEffects();

    // As Render has left it; the document keeps owning it. Its rows are GetPitch bytes apart, its size is in pixels.
    const uint16_t* GetCanvas() const { return canvas.get(); }
    int32_t GetPitch() const { return pitch; }
    vec GetCanvasSize() const { return canvasSize; }
    const std::vector<std::unique_ptr<ScreenObject>>& GetObjects() const { return objects; }
    // The running effects in the order in which they were started.
    const std::vector<EffectRecord>& GetEffects() const { return effects.GetRecords(); }

private:
    void Add(std::unique_ptr<ScreenObject> object, ObjectKind kind);
    void FitObject(ScreenObject& object) const;
    // The index of the first object in list order on the layer, or -1; and the same of every layer, for who needs all.
    int32_t FirstOnLayer(int32_t layer) const;
    std::vector<int32_t> IndicesByLayer() const;
    template <class FindOnLayer> bool PassNeighbour(ScreenObject& object, bool down, FindOnLayer findOnLayer);

    std::vector<std::unique_ptr<ScreenObject>> objects;
    std::vector<std::unique_ptr<PictureObject>> backgrounds;
    std::unique_ptr<uint16_t[]> canvas;
    vec canvasSize { ScreenWidth, ScreenHeight };
    AppearanceEffects effects { canvasSize };
    int32_t pitch = 2 * ScreenWidth;
    int32_t layerCount = 0;
};
