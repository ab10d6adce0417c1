#include "platform/Desktop.h"
#include "platform/ModalLoop.h"
#include "platform/User.h"
#include "platform/windows/DialogWindow.h"
#include "platform/windows/ModalQuestion.h"
#include "platform/windows/ResourceLookup.h"
#include "platform/windows/WindowDestruction.h"
#include "platform/windows/WindowTable.h"

namespace {

// The nearest window that the desktop shows: a question asked by a dialog that is still being made belongs to its
// owner.
HWND ShownOwner(HWND window)
{
    HWND owner = platform::IsWindow(window) ? &platform::RootOf(*window) : nullptr;
    while (owner && !owner->opened)
        owner = owner->parent;
    return owner;
}

void Open(platform::Window& dialog)
{
    dialog.visible = true;
    dialog.opened = true;
    platform::InstalledDesktop()->WindowOpened(dialog);
    SendMessageA(&dialog, WM_WINDOWPOSCHANGED, 0, 0);
}

// Shows the dialog until it has ended, unless its initialisation has ended it already.
void RunDialog(platform::Window& dialog, LPARAM parameter)
{
    const auto hasEnded = [&dialog] { return !platform::IsWindow(&dialog) || dialog.ended; };
    SendMessageA(&dialog, WM_INITDIALOG, 0, parameter);
    if (hasEnded())
        return;
    Open(dialog);
    platform::RunModalLoop(hasEnded);
}

} // namespace

INT_PTR DialogBoxParamA(HINSTANCE instance, const char* templateName, HWND owner, DLGPROC procedure, LPARAM parameter)
{
    const auto* source = instance ? platform::FindResource(instance->dialogs, templateName) : nullptr;
    if (!source || !procedure || !platform::InstalledDesktop() || (owner && !platform::IsWindow(owner)))
        return 0;
    const platform::ModalQuestion question(owner);
    platform::Window& dialog
        = platform::AddWindow(platform::MakeDialogWindow(*source, owner ? &platform::RootOf(*owner) : nullptr));
    dialog.instance = instance;
    dialog.dialogProcedure = procedure;
    RunDialog(dialog, parameter);
    // A dialog that went with its owner was made, but has nothing to answer.
    if (!platform::IsWindow(&dialog))
        return -1;
    const INT_PTR result = dialog.result;
    platform::DestroyWindow(dialog);
    return result;
}

BOOL EndDialog(HWND dialog, INT_PTR result)
{
    if (!platform::IsWindow(dialog) || dialog->kind != platform::WindowKind::Dialog)
        return FALSE;
    dialog->ended = true;
    dialog->result = result;
    return TRUE;
}

HWND GetDlgItem(HWND dialog, int id)
{
    if (!platform::IsWindow(dialog))
        return nullptr;
    for (const auto& control : dialog->children)
        if (control->id == id)
            return control.get();
    return nullptr;
}

int MessageBoxA(HWND owner, const char* text, const char* caption, UINT)
{
    platform::Desktop* desktop = platform::InstalledDesktop();
    if (!desktop)
        return 0;
    const platform::ModalQuestion question(owner);
    return desktop->ShowMessageBox(ShownOwner(owner), text ? text : "", caption ? caption : "");
}
