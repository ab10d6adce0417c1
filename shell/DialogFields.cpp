#include "shell/DialogFields.h"

#include "platform/Big5Literal.h"
#include "platform/User.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <vector>

std::string GetFieldText(HWND dialog, int id, size_t bufferSize)
{
    std::vector<char> buffer(bufferSize, '\0');
    GetWindowTextA(GetDlgItem(dialog, id), buffer.data(), static_cast<int>(buffer.size()));
    return buffer.data();
}

void SetFieldText(HWND dialog, int id, const std::string& text)
{
    SetWindowTextA(GetDlgItem(dialog, id), text.c_str());
}

void SetFieldNumber(HWND dialog, int id, int64_t number)
{
    SetFieldText(dialog, id, std::to_string(number));
}

int32_t DecimalValue(const std::string& text)
{
    const long long value = std::strtoll(text.c_str(), nullptr, 10);
    return static_cast<int32_t>(
        std::clamp<long long>(value, std::numeric_limits<int32_t>::min(), std::numeric_limits<int32_t>::max()));
}

void AddItem(HWND dialog, int id, const std::string& text)
{
    SendMessageA(GetDlgItem(dialog, id), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

void DeleteItem(HWND dialog, int id, int index)
{
    SendMessageA(GetDlgItem(dialog, id), CB_DELETESTRING, static_cast<WPARAM>(index), 0);
}

void SelectItem(HWND dialog, int id, int index)
{
    SendMessageA(GetDlgItem(dialog, id), CB_SETCURSEL, static_cast<WPARAM>(index), 0);
}

int SelectedItem(HWND dialog, int id)
{
    return static_cast<int>(SendMessageA(GetDlgItem(dialog, id), CB_GETCURSEL, 0, 0));
}

void SetTick(HWND dialog, int id, bool ticked)
{
    SendMessageA(GetDlgItem(dialog, id), BM_SETCHECK, ticked ? BST_CHECKED : BST_UNCHECKED, 0);
}

bool IsTicked(HWND dialog, int id)
{
    return SendMessageA(GetDlgItem(dialog, id), BM_GETCHECK, 0, 0) == static_cast<LRESULT>(BST_CHECKED);
}

void AddSectionItems(HWND dialog, int id, int first, int last)
{
    for (int sections = first; sections <= last; ++sections) {
        char item[32];
        std::snprintf(item, sizeof item, u8"切成 %2d 段"_big5, sections);
        AddItem(dialog, id, item);
    }
}
