#include "shell/CheckBoxDialog.h"

#include "objects/CheckBoxObject.h"
#include "resources/ResourceIds.h"
#include "shell/DialogFields.h"
#include "shell/DialogRouting.h"
#include "shell/EditedObject.h"

namespace {

EditedObject<CheckBoxObject> edited;

void OnInit(HWND dialog)
{
    if (const CheckBoxObject* checkBox = edited.Open(dialog))
        SetFieldText(dialog, CheckBoxTextField, checkBox->GetLabelText());
}

void Confirm(HWND dialog)
{
    const std::string text = GetFieldText(dialog, CheckBoxTextField);
    CheckBoxObject* checkBox = edited.Get();
    if (checkBox && !text.empty()) {
        checkBox->SetLabelText(text);
        static_cast<void>(checkBox->Build());
    }
}

void OnCommand(HWND dialog, int id)
{
    if (id == ConfirmButton)
        Confirm(dialog);
    if (id == ConfirmButton || id == CheckBoxCancelButton)
        AskToClose(dialog);
}

void OnClose(HWND dialog)
{
    edited.Close(dialog);
}

} // namespace

INT_PTR CheckBoxDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM)
{
    return RouteDialogMessage({ OnInit, OnCommand, OnClose }, dialog, message, wParam);
}
