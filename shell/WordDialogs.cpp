#include "shell/WordDialogs.h"

#include "objects/CheckBoxObject.h"
#include "objects/WordObject.h"
#include "platform/User.h"
#include "resources/ResourceIds.h"
#include "shell/DialogFields.h"
#include "shell/DialogRouting.h"
#include "shell/ShellContext.h"

#include <algorithm>
#include <memory>

namespace {

struct TypedWord {
    std::string text;
    uint8_t red;
    uint8_t green;
    uint8_t blue;
};

void OnInit(HWND dialog)
{
    SetFieldText(dialog, WordTextField, "");
    SetFieldText(dialog, WordRedField, "0");
    SetFieldText(dialog, WordGreenField, "0");
    SetFieldText(dialog, WordBlueField, "255");
}

uint8_t ReadComponent(HWND dialog, int id)
{
    return static_cast<uint8_t>(std::clamp(DecimalValue(GetFieldText(dialog, id)), 0, 255));
}

TypedWord ReadTypedWord(HWND dialog)
{
    return {
        .text = GetFieldText(dialog, WordTextField),
        .red = ReadComponent(dialog, WordRedField),
        .green = ReadComponent(dialog, WordGreenField),
        .blue = ReadComponent(dialog, WordBlueField),
    };
}

void AddWord(const TypedWord& typed)
{
    auto word = std::make_unique<WordObject>();
    word->SetColor(typed.red, typed.green, typed.blue);
    static_cast<void>(word->SetText(typed.text));
    Shell().document.AddWord(std::move(word));
}

// The colour has no effect on a check box.
void AddCheckBox(const TypedWord& typed)
{
    auto checkBox = std::make_unique<CheckBoxObject>();
    checkBox->SetLabelText(typed.text);
    static_cast<void>(checkBox->Build());
    Shell().document.AddCheckBox(std::move(checkBox));
}

template <void (*add)(const TypedWord&)> void OnCommand(HWND dialog, int id)
{
    if (id != ConfirmButton && id != WordCancelButton)
        return;
    if (id == ConfirmButton) {
        const TypedWord typed = ReadTypedWord(dialog);
        if (!typed.text.empty())
            add(typed);
    }
    AskToClose(dialog);
}

void OnClose(HWND dialog)
{
    EndDialog(dialog, 1);
}

} // namespace

INT_PTR AddWordDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM)
{
    return RouteDialogMessage({ OnInit, OnCommand<AddWord>, OnClose }, dialog, message, wParam);
}

INT_PTR AddCheckBoxDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM)
{
    return RouteDialogMessage({ OnInit, OnCommand<AddCheckBox>, OnClose }, dialog, message, wParam);
}
