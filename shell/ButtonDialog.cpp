#include "shell/ButtonDialog.h"

#include "objects/ButtonObject.h"
#include "resources/ResourceIds.h"
#include "shell/DialogFields.h"
#include "shell/DialogRouting.h"
#include "shell/EditedObject.h"

namespace {

EditedObject<ButtonObject> edited;

constexpr int fewestSections = 3;
constexpr int mostSections = 16;

void OnInit(HWND dialog)
{
    const ButtonObject* button = edited.Open(dialog);
    if (!button)
        return;
    AddSectionItems(dialog, ButtonSectionList, fewestSections, mostSections);
    SelectItem(dialog, ButtonSectionList, button->GetSections() - fewestSections);
    SetFieldNumber(dialog, ButtonWidthField, button->GetView().x);
    SetFieldNumber(dialog, ButtonHeightField, button->GetView().y);
    SetTick(dialog, ButtonBoundaryCheck, button->GetBoundaryCheck());
}

// Without a selected entry (-1) the button takes one section less than the list offers.
bool TakeProperties(HWND dialog, ButtonObject& button)
{
    button.SetSections(SelectedItem(dialog, ButtonSectionList) + fewestSections);
    button.SetBoundaryCheck(IsTicked(dialog, ButtonBoundaryCheck));
    return true;
}

void OnCommand(HWND dialog, int id)
{
    if (id == ConfirmButton)
        edited.Confirm(dialog, TakeProperties);
}

} // namespace

INT_PTR ButtonDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM)
{
    return RouteDialogMessage({ OnInit, OnCommand }, dialog, message, wParam);
}
