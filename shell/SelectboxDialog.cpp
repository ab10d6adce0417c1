#include "shell/SelectboxDialog.h"

#include "objects/SelectboxObject.h"
#include "platform/Big5Literal.h"
#include "resources/ResourceIds.h"
#include "shell/DialogFields.h"
#include "shell/DialogRouting.h"
#include "shell/EditedObject.h"

#include <cstdio>

namespace {

EditedObject<SelectboxObject> edited;

void OnInit(HWND dialog)
{
    const SelectboxObject* selectbox = edited.Open(dialog);
    if (!selectbox)
        return;
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
void Add(HWND dialog, SelectboxObject& selectbox)
{
    const std::string text = GetFieldText(dialog, NewChoiceField);
    SetFieldText(dialog, NewChoiceField, "");
    AddItem(dialog, ChoiceList, text);
    SelectItem(dialog, ChoiceList, 0);
    SelectItem(dialog, DeleteChoiceList, 0);
    selectbox.AddString(text);
}

// Both lists are edited by position: the remaining entries keep their old numbers.
void Delete(HWND dialog, SelectboxObject& selectbox)
{
    const int index = SelectedItem(dialog, DeleteChoiceList);
    selectbox.RemoveString(index);
    DeleteItem(dialog, DeleteChoiceList, index);
    DeleteItem(dialog, ChoiceList, index);
    SelectItem(dialog, DeleteChoiceList, 0);
    SelectItem(dialog, ChoiceList, 0);
}

void OnCommand(HWND dialog, int id)
{
    SelectboxObject* selectbox = edited.Get();
    if (id == ChoicesDoneButton)
        AskToClose(dialog);
    else if (id == ConfirmButton && selectbox)
        Add(dialog, *selectbox);
    else if (id == DeleteChoiceButton && selectbox)
        Delete(dialog, *selectbox);
}

void OnClose(HWND dialog)
{
    edited.Close(dialog);
}

} // namespace

INT_PTR SelectboxDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM)
{
    return RouteDialogMessage({ OnInit, OnCommand, OnClose }, dialog, message, wParam);
}
