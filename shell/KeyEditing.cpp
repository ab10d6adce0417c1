#include "shell/KeyEditing.h"

#include "objects/AnimationObject.h"
#include "platform/User.h"
#include "shell/ObjectLookup.h"
#include "shell/ScriptCommands.h"

namespace {

// Grab positions stay: the next press or release refreshes them.
void NudgeSelection(vec step)
{
    ForEachSelected([&](size_t, ScreenObject& object) { object.SetPos(object.GetPos() + step); });
}

void MoveLayerUnderPointer(bool down)
{
    int32_t index = -1;
    if (FindObject(Shell().editing.GetPointer(), index))
        Shell().document.MoveLayer(index, down);
}

void DeleteUnderPointer()
{
    ScreenDocument& document = Shell().document;
    EditorState& editing = Shell().editing;
    editing.ClearSelection();
    int32_t index = -1;
    const ScreenObject* object = FindObject(editing.GetPointer(), index);
    if (!object)
        return;
    if (editing.GetCurrentObject() == object)
        editing.SetCurrentObject(nullptr);
    document.RemoveObject(index);
    editing.SetObjectCount(document.GetLayerCount());
}

// Plays or pauses an animation, starts any other object's appearance effect.
void PreviewUnderPointer()
{
    int32_t index = -1;
    ScreenObject* object = FindObject(Shell().editing.GetPointer(), index);
    if (!object)
        return;
    if (auto* animation = dynamic_cast<AnimationObject*>(object)) {
        if (animation->IsPlaying())
            animation->Pause();
        else
            animation->Play();
    } else if (!object->GetEffectRunning()) {
        Shell().document.StartEffect(index);
    }
}

void SaveWithControl()
{
    if (GetKeyState(VK_CONTROL) < 0)
        QuickSave();
}

} // namespace

void EditWithKey(int virtualKey)
{
    constexpr struct {
        int virtualKey;
        void (*run)();
    } keys[] = {
        { VK_ESCAPE, [] { SendMessageA(Shell().mainWindow, WM_CLOSE, 0, 0); } },
        { VK_PRIOR, [] { MoveLayerUnderPointer(false); } },
        { VK_NEXT, [] { MoveLayerUnderPointer(true); } },
        { VK_LEFT,
            [] {
                NudgeSelection({ -1, 0 });
            } },
        { VK_UP,
            [] {
                NudgeSelection({ 0, -1 });
            } },
        { VK_RIGHT,
            [] {
                NudgeSelection({ 1, 0 });
            } },
        { VK_DOWN,
            [] {
                NudgeSelection({ 0, 1 });
            } },
        { VK_DELETE, DeleteUnderPointer },
        { 'P', PreviewUnderPointer },
        { 'S', SaveWithControl },
    };
    for (const auto& key : keys)
        if (key.virtualKey == virtualKey)
            return key.run();
}
