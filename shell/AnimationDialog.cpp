#include "shell/AnimationDialog.h"

#include "objects/AnimationObject.h"
#include "resources/ResourceIds.h"
#include "shell/DialogFields.h"
#include "shell/DialogRouting.h"
#include "shell/EditedObject.h"

namespace {

EditedObject<AnimationObject> edited;

constexpr int fewestSections = 1;
constexpr int mostSections = 40;

void OnInit(HWND dialog)
{
    const AnimationObject* animation = edited.Open(dialog);
    if (!animation)
        return;
    AddSectionItems(dialog, AnimationSectionList, fewestSections, mostSections);
    SelectItem(dialog, AnimationSectionList, animation->GetSections() - fewestSections);
    SetFieldNumber(dialog, AnimationWidthField, animation->GetView().x);
    SetFieldNumber(dialog, AnimationHeightField, animation->GetView().y);
    SetFieldNumber(dialog, AnimationIntervalField, static_cast<int64_t>(animation->GetInterval()));
}

// Without a selected entry (-1) the count asked for is 0, which the animation raises to 1.
bool TakeProperties(HWND dialog, AnimationObject& animation)
{
    animation.SetSections(SelectedItem(dialog, AnimationSectionList) + fewestSections);
    animation.SetInterval(static_cast<float>(DecimalValue(GetFieldText(dialog, AnimationIntervalField))));
    return true;
}

void OnCommand(HWND dialog, int id)
{
    if (id == ConfirmButton)
        edited.Confirm(dialog, TakeProperties);
}

} // namespace

INT_PTR AnimationDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM)
{
    return RouteDialogMessage({ OnInit, OnCommand }, dialog, message, wParam);
}
