#include "platform/windows/Controls.h"

#include "platform/windows/WindowTable.h"

#include <algorithm>
#include <string>

namespace platform {

namespace {

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
    return static_cast<LRESULT>(dropDown.items.size());
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

} // namespace

LRESULT SendToControl(Window& control, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (control.kind == WindowKind::DropDown)
        return SendToDropDown(control, message, wParam, lParam);
    if (control.kind == WindowKind::CheckBox)
        return SendToCheckBox(control, message, wParam);
    return 0;
}

} // namespace platform
