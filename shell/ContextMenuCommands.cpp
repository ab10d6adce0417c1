#include "shell/ContextMenuCommands.h"

#include "objects/AnimationObject.h"
#include "objects/CheckBoxObject.h"
#include "platform/Big5Literal.h"
#include "platform/User.h"
#include "resources/ResourceIds.h"
#include "shell/AnimationDialog.h"
#include "shell/ButtonDialog.h"
#include "shell/CheckBoxDialog.h"
#include "shell/ObjectLookup.h"
#include "shell/PictureDialog.h"
#include "shell/SelectboxDialog.h"

namespace {

HMENU MenuFor(ObjectKind kind)
{
    const ContextMenus& menus = Shell().menus;
    switch (kind) {
    case KindAnimation:
        return menus.animation;
    case KindCheckBox:
        return menus.checkBox;
    case KindSelectbox:
        return menus.selectbox;
    case KindNone:
    case KindPicture:
    case KindButton:
    case KindWord:
        break;
    }
    return menus.general;
}

INT_PTR RunDialog(const char* name, DLGPROC procedure)
{
    return DialogBoxParamA(Shell().instance, name, Shell().mainWindow, procedure, 0);
}

// Afterwards the whole client area is drawn anew.
void EditProperties(const char* dialogName, DLGPROC procedure)
{
    if (RunDialog(dialogName, procedure) == 0)
        MessageBoxA(Shell().mainWindow, u8"產生 Dialog 時發生錯誤"_big5, "Dialog Error", MB_OK);
    else
        InvalidateRect(Shell().mainWindow, nullptr, TRUE);
}

void EditObjectProperties()
{
    const ScreenObject* object = FindContextObject();
    if (!object)
        return;
    if (object->GetKind() == KindPicture)
        EditProperties("ImageDialog", PictureDialogProc);
    else if (object->GetKind() == KindButton)
        EditProperties("BUTTONDIALOG", ButtonDialogProc);
}

void EditAnimationProperties()
{
    const ScreenObject* object = FindContextObject();
    if (object && object->GetKind() == KindAnimation)
        EditProperties("ANIMATIONDIALOG", AnimationDialogProc);
}

void EditCheckBoxProperties()
{
    if (FindContextObject())
        EditProperties("CheckboxProp", CheckBoxDialogProc);
}

// Nothing is drawn anew afterwards: the next idle frame shows the choices.
void EditSelectboxChoices()
{
    if (FindContextObject())
        static_cast<void>(RunDialog("SelectboxAddString", SelectboxDialogProc));
}

void MoveToEnd(bool down)
{
    int32_t index = -1;
    if (FindObject(Shell().editing.GetPointer(), index))
        Shell().document.MoveToEnd(index, down);
}

void MoveToBottom()
{
    MoveToEnd(true);
}

void MoveToTop()
{
    MoveToEnd(false);
}

AnimationObject* AnimationAtContextPoint()
{
    return dynamic_cast<AnimationObject*>(FindContextObject());
}

void PlayAnimation()
{
    if (AnimationObject* animation = AnimationAtContextPoint())
        animation->Play();
}

void PauseAnimation()
{
    if (AnimationObject* animation = AnimationAtContextPoint())
        animation->Pause();
}

void RestartAnimation()
{
    if (AnimationObject* animation = AnimationAtContextPoint())
        animation->Restart();
}

void ToggleCheckBoxEnabled()
{
    if (auto* checkBox = dynamic_cast<CheckBoxObject*>(FindContextObject()))
        checkBox->SetEnabled(!checkBox->IsEnabled());
}

} // namespace

void LoadContextMenus()
{
    const auto popup = [](const char* name) { return GetSubMenu(LoadMenuA(Shell().instance, name), 0); };
    Shell().menus = {
        .general = popup("PopUpMenu"),
        .animation = popup("AnimationPopMenu"),
        .checkBox = popup("CheckBoxPopMenu"),
        .selectbox = popup("SelectboxPopMenu"),
    };
}

void ShowContextMenu(ObjectKind kind, vec point)
{
    POINT corner { point.x, point.y };
    ClientToScreen(Shell().mainWindow, &corner);
    TrackPopupMenu(MenuFor(kind), TPM_LEFTALIGN | TPM_TOPALIGN | TPM_RIGHTBUTTON, corner.x, corner.y, 0,
        Shell().mainWindow, nullptr);
}

void RunContextMenuCommand(WORD id)
{
    constexpr struct {
        WORD id;
        void (*run)();
    } commands[] = {
        { MenuObjectProperties, EditObjectProperties },
        { MenuToBottom, MoveToBottom },
        { MenuToTop, MoveToTop },
        { MenuPlay, PlayAnimation },
        { MenuPause, PauseAnimation },
        { MenuRestart, RestartAnimation },
        { MenuAnimationProperties, EditAnimationProperties },
        { MenuToggleCheckBox, ToggleCheckBoxEnabled },
        { MenuCheckBoxProperties, EditCheckBoxProperties },
        { MenuSelectboxChoices, EditSelectboxChoices },
    };
    for (const auto& command : commands)
        if (command.id == id)
            return command.run();
}
