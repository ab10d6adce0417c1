#include "platform/scripted/DialogDriver.h"

#include "platform/CodePage.h"
#include "platform/DesktopEvents.h"
#include "platform/windows/WindowTable.h"

#include <algorithm>

namespace platform {

DialogDriver::DialogDriver(Problems& desktopsProblems, HWND openDialog)
    : problems(desktopsProblems)
    , dialog(openDialog)
{
}

bool DialogDriver::IsOpen() const
{
    return IsWindow(dialog) && !dialog->ended;
}

std::string DialogDriver::Title() const
{
    return IsWindow(dialog) ? Utf8FromCodePage(dialog->text) : "";
}

HWND DialogDriver::Control(int id) const
{
    HWND control = GetDlgItem(dialog, id);
    if (!control)
        problems.Report("the dialog \"" + Title() + "\" has no control " + std::to_string(id));
    return control;
}

HWND DialogDriver::ControlFor(WindowKind kind, int id) const
{
    HWND control = Control(id);
    if (!control)
        return nullptr;
    if (control->kind == kind && IsOpen() && TakesInput(*control))
        return control;
    problems.Report("control " + std::to_string(id) + " of the dialog \"" + Title() + "\" cannot be worked like that");
    return nullptr;
}

std::string DialogDriver::Bytes(int id) const
{
    HWND control = Control(id);
    return control ? control->text : "";
}

std::string DialogDriver::Text(int id) const
{
    return Utf8FromCodePage(Bytes(id));
}

std::vector<std::string> DialogDriver::Items(int id) const
{
    std::vector<std::string> items;
    if (HWND control = Control(id))
        for (const std::string& item : control->items)
            items.push_back(Utf8FromCodePage(item));
    return items;
}

int DialogDriver::Selection(int id) const
{
    HWND control = Control(id);
    return control ? control->selection : -1;
}

bool DialogDriver::IsChecked(int id) const
{
    HWND control = Control(id);
    return control && control->checked;
}

std::string DialogDriver::Value(int id) const
{
    HWND control = Control(id);
    if (control && control->kind == WindowKind::CheckBox)
        return control->checked ? "on" : "off";
    return Text(id);
}

void DialogDriver::SetText(int id, std::string_view text)
{
    HWND control = Control(id);
    const bool isDropDown = control && control->kind == WindowKind::DropDown;
    if (ControlFor(isDropDown ? WindowKind::DropDown : WindowKind::Edit, id))
        EditTyped(*control, CodePageFromUtf8(text));
}

void DialogDriver::Select(int id, int index)
{
    HWND control = ControlFor(WindowKind::DropDown, id);
    if (!control)
        return;
    if (index < 0 || static_cast<size_t>(index) >= control->items.size())
        problems.Report("the list " + std::to_string(id) + " has no entry " + std::to_string(index));
    else
        ItemSelected(*control, index);
}

void DialogDriver::Check(int id, bool on)
{
    HWND control = ControlFor(WindowKind::CheckBox, id);
    if (!control || control->checked == on)
        return;
    control->checked = on;
    ButtonClicked(*control);
}

void DialogDriver::Enter(int id, const std::string& value)
{
    HWND control = Control(id);
    if (!control || !control->enabled)
        return;
    const auto entry = std::find(control->items.begin(), control->items.end(), CodePageFromUtf8(value));
    if (control->kind == WindowKind::CheckBox)
        Check(id, value == "on");
    else if (entry != control->items.end())
        Select(id, static_cast<int>(entry - control->items.begin()));
    else
        SetText(id, value);
}

void DialogDriver::Press(int id)
{
    if (HWND control = ControlFor(WindowKind::PushButton, id))
        ButtonClicked(*control);
}

void DialogDriver::Key(int virtualKey)
{
    if (IsOpen() && (virtualKey == VK_ESCAPE || virtualKey == VK_RETURN))
        DialogKey(*dialog, virtualKey == VK_ESCAPE ? IDCANCEL : IDOK);
}

void DialogDriver::CloseBox()
{
    if (!IsOpen() || !dialog->closeBox)
        problems.Report("the dialog \"" + Title() + "\" has no close box to press");
    else
        CloseBoxClicked(*dialog);
}

void DialogDriver::Move(int x, int y)
{
    if (IsOpen())
        WindowMoved(*dialog, x, y);
}

} // namespace platform
