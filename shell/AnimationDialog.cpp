#include "shell/AnimationDialog.h"

#include "objects/AnimationObject.h"
#include "platform/User.h"
#include "resources/ResourceIds.h"
#include "shell/DialogFields.h"
#include "shell/DialogRouting.h"

#include <cstdio>

namespace {

AnimationObject* animation = nullptr; // while the dialog is open

constexpr int fewestSections = 1;
constexpr int mostSections = 40;

void OnInit(HWND dialog)
{
    animation = FindEditedObject<AnimationObject>();
    if (!animation) {
        EndDialog(dialog, 1);
        return;
    }
    AddSectionItems(dialog, AnimationSectionList, fewestSections, mostSections);
    SelectItem(dialog, AnimationSectionList, animation->GetSections() - fewestSections);
    SetFieldNumber(dialog, AnimationWidthField, animation->GetView().x);
    SetFieldNumber(dialog, AnimationHeightField, animation->GetView().y);
    SetFieldNumber(dialog, AnimationIntervalField, static_cast<int64_t>(animation->GetInterval()));
}

// Without a selected entry (-1) the count asked for is 0, which the animation raises to 1.
void Confirm(HWND dialog)
{
    animation->SetSections(SelectedItem(dialog, AnimationSectionList) + fewestSections);
    animation->SetInterval(static_cast<float>(DecimalValue(GetFieldText(dialog, AnimationIntervalField))));
    animation = nullptr;
    EndDialog(dialog, 1);
}

void OnCommand(HWND dialog, int id)
{
    if (id == ConfirmButton && animation)
        Confirm(dialog);
}

} // namespace

INT_PTR AnimationDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM)
{
    return RouteDialogMessage({ OnInit, OnCommand }, dialog, message, wParam);
}
