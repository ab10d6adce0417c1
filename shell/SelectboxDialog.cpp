#include "shell/SelectboxDialog.h"

#include "objects/SelectboxObject.h"
#include "platform/Big5Literal.h"
#include "platform/User.h"
#include "resources/ResourceIds.h"
#include "shell/DialogFields.h"
#include "shell/DialogRouting.h"

#include <cstdio>

namespace {

SelectboxObject* selectbox = nullptr; // while the dialog is open

void OnInit(HWND dialog)
{
    selectbox = FindEditedObject<SelectboxObject>();
    if (!selectbox) {
        EndDialog(dialog, 1);
        return;
    }
    for (int32_t i = 0; i < selectbox->GetCount(); ++i) {
        AddItem(dialog, ChoiceList, selectbox->GetString(i));
        char item[64];
        std::snprintf(item, sizeof item, u8"刪除第 %d 個選項"_big5, i);
        AddItem(dialog, DeleteChoiceList, item);
    }
    SelectItem(dialog, ChoiceList, 0);
    SetFieldText(dialog, NewChoiceField, "");
    SelectItem(dialog, DeleteChoiceList, 0);
}

// The list of deletable entries gets no new entry.
void Add(HWND dialog)
{
    const std::string text = GetFieldText(dialog, NewChoiceField);
    SetFieldText(dialog, NewChoiceField, "");
    AddItem(dialog, ChoiceList, text);
    SelectItem(dialog, ChoiceList, 0);
    SelectItem(dialog, DeleteChoiceList, 0);
    selectbox->AddString(text);
}

// Both lists are edited by position: the remaining entries keep their old numbers.
void Delete(HWND dialog)
{
    const int index = SelectedItem(dialog, DeleteChoiceList);
    selectbox->RemoveString(index);
    DeleteItem(dialog, DeleteChoiceList, index);
    DeleteItem(dialog, ChoiceList, index);
    SelectItem(dialog, DeleteChoiceList, 0);
    SelectItem(dialog, ChoiceList, 0);
}

void OnCommand(HWND dialog, int id)
{
    if (id == ChoicesDoneButton)
        AskToClose(dialog);
    else if (id == ConfirmButton && selectbox)
        Add(dialog);
    else if (id == DeleteChoiceButton && selectbox)
        Delete(dialog);
}

void OnClose(HWND dialog)
{
    selectbox = nullptr;
    EndDialog(dialog, 1);
}

} // namespace

INT_PTR SelectboxDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM)
{
    return RouteDialogMessage({ OnInit, OnCommand, OnClose }, dialog, message, wParam);
}
