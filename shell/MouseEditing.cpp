#include "shell/MouseEditing.h"

#include "platform/User.h"
#include "shell/ContextMenuCommands.h"
#include "shell/ObjectLookup.h"

#include <utility>

MouseMessage MouseMessage::From(WPARAM wParam, LPARAM lParam)
{
    const auto word = static_cast<uint32_t>(lParam);
    return {
        .point = { static_cast<int16_t>(LOWORD(word)), static_cast<int16_t>(HIWORD(word)) },
        .leftHeld = (wParam & MK_LBUTTON) != 0,
        .shift = (wParam & MK_SHIFT) != 0,
        .wParam = static_cast<uint32_t>(wParam),
        .lParam = word,
    };
}

namespace {

// Every selected object is grabbed where it now lies.
void GrabSelection()
{
    ForEachSelected([](size_t i, const ScreenObject& object) { Shell().editing.SetGrab(i, object.GetPos()); });
}

void StartDrag()
{
    SetCapture(Shell().mainWindow);
    Shell().editing.SetDragging(true);
}

void PressObject(const ScreenObject& object, int32_t index, bool shift)
{
    EditorState& editing = Shell().editing;
    const bool selected = editing.IsSelected(index);
    if (shift && selected) {
        editing.RemoveFromSelection(index);
    } else if (shift) {
        editing.AddToSelection(index, object.GetPos());
    } else if (selected) {
        StartDrag();
        GrabSelection();
    } else {
        StartDrag();
        editing.SelectOnly(index, object.GetPos());
    }
}

// Selects what lies between the press point and where the pointer was before this move.
void StretchRubberBand()
{
    EditorState& editing = Shell().editing;
    vec topLeft = editing.GetPressPoint();
    vec bottomRight = editing.GetPointer();
    if (topLeft.x > bottomRight.x)
        std::swap(topLeft.x, bottomRight.x);
    if (topLeft.y > bottomRight.y)
        std::swap(topLeft.y, bottomRight.y);

    editing.ClearSelection();
    const ScreenDocument& document = Shell().document;
    for (int32_t index = 0; index < document.GetObjectCount(); ++index) {
        ScreenObject* object = nullptr;
        if (document.IsObjectInRect(index, topLeft, bottomRight) && document.GetObject(index, object))
            editing.AddToSelection(index, object->GetPos());
    }
}

// Nothing is kept inside here: the next frame fits every object to the canvas.
void DragSelection(vec delta)
{
    ForEachSelected([&](size_t i, ScreenObject& object) { object.SetPos(Shell().editing.GetGrab(i) + delta); });
}

} // namespace

void OnLeftPress(const MouseMessage& mouse)
{
    EditorState& editing = Shell().editing;
    int32_t index = -1;
    ScreenObject* object = FindObject(mouse.point, index);
    const bool found = index != -1;

    editing.SetPressPoint(mouse.point);
    editing.SetPressHit(found);
    editing.SetDragging(false);
    if (!found && !mouse.shift)
        editing.ClearSelection();
    if (object)
        PressObject(*object, index, mouse.shift);

    editing.SetPointer(mouse.point);
    editing.SetCurrentObject(object);
    Shell().document.Dispatch(MsgLeftDown, mouse.wParam, mouse.lParam);
}

void OnMouseMove(const MouseMessage& mouse)
{
    EditorState& editing = Shell().editing;
    int32_t index = -1;
    ScreenObject* object = FindObject(mouse.point, index);

    const bool pressedBefore = !(editing.GetPressPoint() == -1);
    if (mouse.leftHeld && !mouse.shift && pressedBefore) {
        if (editing.IsPressHit())
            DragSelection(mouse.point - editing.GetPressPoint());
        else
            StretchRubberBand();
    }

    editing.SetPointer(mouse.point);
    if (object)
        editing.SetCurrentObject(object);
    Shell().document.Dispatch(MsgMouseMove, mouse.wParam, mouse.lParam);
}

void OnLeftRelease(const MouseMessage& mouse)
{
    EditorState& editing = Shell().editing;
    if (editing.IsDragging())
        ReleaseCapture();
    editing.SetDragging(false);
    editing.SetPressHit(false);
    GrabSelection();
    editing.SetPointer(mouse.point);
    Shell().document.Dispatch(MsgLeftUp, mouse.wParam, mouse.lParam);
}

void OnRightPress(const MouseMessage& mouse)
{
    EditorState& editing = Shell().editing;
    editing.SetPointer(mouse.point);
    editing.SetContextPoint(mouse.point);
    int32_t index = -1;
    const ScreenObject* object = FindObject(mouse.point, index);
    if (!object)
        return;
    const ObjectKind kind = object->GetKind();
    Shell().document.Dispatch(MsgRightDown, mouse.wParam, mouse.lParam);
    ShowContextMenu(kind, mouse.point);
}
