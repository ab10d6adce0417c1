#include "shell/KeyEditing.h"

#include "objects/AnimationObject.h"
#include "objects/ScreenDocument.h"
#include "platform/User.h"
#include "shell/ShellContext.h"

namespace {

// Grab positions stay: the next press or release refreshes them.
void NudgeSelection(vec step)
{
    const EditorState& editing = Shell().editing;
    for (size_t i = 0; i < editing.GetSelectionCount(); ++i) {
        ScreenObject* object = nullptr;
        if (Shell().document.GetObject(editing.GetSelectedIndex(i), object))
            object->SetPos(object->GetPos() + step);
    }
}

void MoveLayerUnderPointer(bool down)
{
    ScreenDocument& document = Shell().document;
    int32_t index = -1;
    if (document.FindObjectAt(Shell().editing.GetPointer(), index))
        document.MoveLayer(index, down);
}

void DeleteUnderPointer()
{
    ScreenDocument& document = Shell().document;
    EditorState& editing = Shell().editing;
    editing.ClearSelection();
    int32_t index = -1;
    ScreenObject* object = nullptr;
    if (!document.FindObjectAt(editing.GetPointer(), index) || !document.GetObject(index, object))
        return;
    if (editing.GetCurrentObject() == object)
        editing.SetCurrentObject(nullptr);
    document.RemoveObject(index);
    editing.SetObjectCount(document.GetLayerCount());
}

// Plays or pauses an animation, starts any other object's appearance effect.
void PreviewUnderPointer()
{
    ScreenDocument& document = Shell().document;
    int32_t index = -1;
    ScreenObject* object = nullptr;
    if (!document.FindObjectAt(Shell().editing.GetPointer(), index) || !document.GetObject(index, object))
        return;
    if (auto* animation = dynamic_cast<AnimationObject*>(object)) {
        if (animation->IsPlaying())
            animation->Pause();
        else
            animation->Play();
    } else if (!object->GetEffectRunning()) {
        document.StartEffect(index);
    }
}

} // namespace

void EditWithKey(int virtualKey)
{
    switch (virtualKey) {
    case VK_ESCAPE:
        SendMessageA(Shell().mainWindow, WM_CLOSE, 0, 0);
        break;
    case VK_PRIOR:
        MoveLayerUnderPointer(false);
        break;
    case VK_NEXT:
        MoveLayerUnderPointer(true);
        break;
    case VK_LEFT:
        NudgeSelection({ -1, 0 });
        break;
    case VK_UP:
        NudgeSelection({ 0, -1 });
        break;
    case VK_RIGHT:
        NudgeSelection({ 1, 0 });
        break;
    case VK_DOWN:
        NudgeSelection({ 0, 1 });
        break;
    case VK_DELETE:
        DeleteUnderPointer();
        break;
    case 'P':
        PreviewUnderPointer();
        break;
    default:
        break;
    }
}
