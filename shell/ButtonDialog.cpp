#include "shell/ButtonDialog.h"

#include "objects/ButtonObject.h"
#include "platform/User.h"
#include "resources/ResourceIds.h"
#include "shell/DialogFields.h"
#include "shell/DialogRouting.h"

namespace {

ButtonObject* button = nullptr; // while the dialog is open

constexpr int fewestSections = 3;
constexpr int mostSections = 16;

void OnInit(HWND dialog)
{
    button = FindEditedObject<ButtonObject>();
    if (!button) {
        EndDialog(dialog, 1);
        return;
    }
    AddSectionItems(dialog, ButtonSectionList, fewestSections, mostSections);
    SelectItem(dialog, ButtonSectionList, button->GetSections() - fewestSections);
    SetFieldNumber(dialog, ButtonWidthField, button->GetView().x);
    SetFieldNumber(dialog, ButtonHeightField, button->GetView().y);
    SetTick(dialog, ButtonBoundaryCheck, button->GetBoundaryCheck());
}

// Without a selected entry (-1) the button takes one section less than the list offers.
void Confirm(HWND dialog)
{
    button->SetSections(SelectedItem(dialog, ButtonSectionList) + fewestSections);
    button->SetBoundaryCheck(IsTicked(dialog, ButtonBoundaryCheck));
    button = nullptr;
    EndDialog(dialog, 1);
}

void OnCommand(HWND dialog, int id)
{
    if (id == ConfirmButton && button)
        Confirm(dialog);
}

} // namespace

INT_PTR ButtonDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM)
{
    return RouteDialogMessage({ OnInit, OnCommand }, dialog, message, wParam);
}
