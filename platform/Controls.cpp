#include "platform/CodePage.h"
#include "platform/DesktopEvents.h"
#include "platform/MessageQueue.h"
#include "platform/WindowTable.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace platform {

namespace {

int Count(const Window& dropDown)
{
    return static_cast<int>(dropDown.items.size());
}

LRESULT AddItem(Window& dropDown, const char* text)
{
    auto& items = dropDown.items;
    const std::string item = text ? text : "";
    const auto place = dropDown.sorted ? std::upper_bound(items.begin(), items.end(), item) : items.end();
    const int index = static_cast<int>(place - items.begin());
    items.insert(place, item);
    if (index <= dropDown.selection)
        ++dropDown.selection;
    ShowChange(dropDown);
    return index;
}

// With the selected entry its text leaves the field.
LRESULT DeleteItem(Window& dropDown, WPARAM index)
{
    if (index >= dropDown.items.size())
        return CB_ERR;
    const int position = static_cast<int>(index);
    dropDown.items.erase(dropDown.items.begin() + position);
    if (position < dropDown.selection) {
        --dropDown.selection;
    } else if (position == dropDown.selection) {
        dropDown.selection = -1;
        dropDown.text.clear();
    }
    ShowChange(dropDown);
    return Count(dropDown);
}

// An index outside the list empties the field.
LRESULT SelectItem(Window& dropDown, WPARAM index)
{
    const bool found = index < dropDown.items.size();
    dropDown.selection = found ? static_cast<int>(index) : -1;
    dropDown.text = found ? dropDown.items[index] : "";
    ShowChange(dropDown);
    return found ? dropDown.selection : CB_ERR;
}

LRESULT SendToDropDown(Window& dropDown, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case CB_ADDSTRING:
        return AddItem(dropDown, reinterpret_cast<const char*>(lParam));
    case CB_DELETESTRING:
        return DeleteItem(dropDown, wParam);
    case CB_SETCURSEL:
        return SelectItem(dropDown, wParam);
    case CB_GETCURSEL:
        return dropDown.selection;
    case CB_GETCOUNT:
        return Count(dropDown);
    default:
        return 0;
    }
}

LRESULT SendToCheckBox(Window& checkBox, UINT message, WPARAM wParam)
{
    if (message == BM_GETCHECK)
        return static_cast<LRESULT>(checkBox.checked ? BST_CHECKED : BST_UNCHECKED);
    if (message == BM_SETCHECK) {
        checkBox.checked = wParam == BST_CHECKED;
        ShowChange(checkBox);
    }
    return 0;
}

bool IsNoDigit(char byte)
{
    return byte < '0' || byte > '9';
}

} // namespace

LRESULT SendToControl(Window& control, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (control.kind == WindowKind::DropDown)
        return SendToDropDown(control, message, wParam, lParam);
    if (control.kind == WindowKind::CheckBox)
        return SendToCheckBox(control, message, wParam);
    return 0;
}

void EditTyped(Window& control, std::string_view text)
{
    if (!IsWindow(&control) || !TakesInput(control))
        return;
    if (control.kind == WindowKind::DropDown)
        control.selection = -1;
    else if (control.kind != WindowKind::Edit)
        return;
    control.text = text;
    if (control.digitsOnly && std::erase_if(control.text, IsNoDigit) > 0)
        ShowChange(control);
}

void ItemSelected(Window& dropDown, int index)
{
    if (!IsWindow(&dropDown) || !TakesInput(dropDown) || dropDown.kind != WindowKind::DropDown)
        return;
    if (index < 0 || index >= Count(dropDown))
        return;
    dropDown.selection = index;
    dropDown.text = dropDown.items[static_cast<size_t>(index)];
}

} // namespace platform

int GetWindowTextA(HWND window, char* text, int capacity)
{
    if (!text || capacity <= 0)
        return 0;
    text[0] = '\0';
    if (!platform::IsWindow(window))
        return 0;
    const std::string_view copied = platform::CutToBytes(window->text, static_cast<size_t>(capacity) - 1);
    std::memcpy(text, copied.data(), copied.size());
    text[copied.size()] = '\0';
    return static_cast<int>(copied.size());
}

BOOL SetWindowTextA(HWND window, const char* text)
{
    if (!platform::IsWindow(window))
        return FALSE;
    window->text = text ? text : "";
    platform::ShowChange(*window);
    return TRUE;
}
