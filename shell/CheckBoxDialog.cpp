#include "shell/CheckBoxDialog.h"

#include "objects/CheckBoxObject.h"
#include "platform/User.h"
#include "resources/ResourceIds.h"
#include "shell/DialogFields.h"
#include "shell/DialogRouting.h"

namespace {

CheckBoxObject* checkBox = nullptr; // while the dialog is open

void OnInit(HWND dialog)
{
    checkBox = FindEditedObject<CheckBoxObject>();
    if (checkBox)
        SetFieldText(dialog, CheckBoxTextField, checkBox->GetLabelText());
    else
        EndDialog(dialog, 1);
}

void Confirm(HWND dialog)
{
    const std::string text = GetFieldText(dialog, CheckBoxTextField);
    if (!text.empty()) {
        checkBox->SetLabelText(text);
        static_cast<void>(checkBox->Build());
    }
    AskToClose(dialog);
}

void OnCommand(HWND dialog, int id)
{
    if (id == ConfirmButton && checkBox)
        Confirm(dialog);
    else if (id == CheckBoxCancelButton)
        AskToClose(dialog);
}

void OnClose(HWND dialog)
{
    checkBox = nullptr;
    EndDialog(dialog, 1);
}

} // namespace

INT_PTR CheckBoxDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM)
{
    return RouteDialogMessage({ OnInit, OnCommand, OnClose }, dialog, message, wParam);
}
