#include "platform/Comdlg.h"

#include "platform/Big5Literal.h"
#include "platform/CodePage.h"
#include "platform/Desktop.h"
#include "platform/Path.h"
#include "platform/User.h"
#include "platform/windows/ModalQuestion.h"
#include "platform/windows/WindowTable.h"

#include <cstring>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace fs = std::filesystem;

namespace {

struct Filter {
    std::string_view label;
    std::string_view pattern;
};

// The pair with the number, counted from 1; the first one when there is no such pair.
Filter ChosenFilter(const char* pairs, DWORD number)
{
    Filter first;
    for (DWORD i = 1; pairs && *pairs; ++i) {
        Filter filter;
        filter.label = pairs;
        pairs += filter.label.size() + 1;
        filter.pattern = pairs;
        pairs += filter.pattern.size() + 1;
        if (i == number)
            return filter;
        if (i == 1)
            first = filter;
    }
    return first;
}

// The asked-for folder where it exists, else the current one.
fs::path StartFolder(const char* codePageFolder)
{
    std::error_code error;
    fs::path current = fs::current_path(error);
    if (!codePageFolder || !*codePageFolder)
        return current;
    const fs::path asked = (current / platform::NativePath(codePageFolder)).lexically_normal();
    if (!fs::is_directory(asked, error))
        return current;
    return asked.has_filename() ? asked : asked.parent_path();
}

void Refuse(HWND owner, const char* reason)
{
    MessageBoxA(owner, reason, u8"無法使用檔名"_big5, MB_OK);
}

// Why the program cannot take the file, or null.
const char* ReasonAgainst(const fs::path& file, const OPENFILENAMEA& request, std::optional<std::string>& name)
{
    if (platform::IsMisread(file.native()))
        return u8"檔案名稱不能以英文字母加冒號開頭, 路徑裡不能有反斜線, 請先更改名稱"_big5;
    std::error_code error;
    name = platform::CodePagePath(file.native());
    if (!name)
        return u8"檔案名稱或資料夾名稱含有 Big5 無法表示的字, 請先更改名稱"_big5;
    if (name->size() >= request.nMaxFile)
        return u8"檔案名稱連同資料夾名稱太長"_big5;
    if (!fs::is_directory(file.parent_path(), error))
        return u8"找不到這個資料夾"_big5;
    if (!file.has_filename() || fs::is_directory(file, error))
        return u8"這是資料夾, 請點選檔案"_big5;
    if ((request.Flags & OFN_FILEMUSTEXIST) != 0 && !fs::exists(file, error))
        return u8"找不到這個檔案"_big5;
    if (platform::NativePath(*name) != file)
        return u8"已經有只差大小寫的名稱, 請點選那個檔案或換一個名稱"_big5;
    return nullptr;
}

std::optional<std::string> AskForFile(const OPENFILENAMEA& request, const fs::path& folder)
{
    const Filter filter = ChosenFilter(request.lpstrFilter, request.nFilterIndex);
    platform::FileRequest question;
    question.owner = platform::IsWindow(request.hwndOwner) ? request.hwndOwner : nullptr;
    question.label = platform::Utf8FromCodePage(filter.label);
    question.pattern = platform::Utf8FromCodePage(filter.pattern);
    question.folder = folder.native();
    question.mustExist = (request.Flags & OFN_FILEMUSTEXIST) != 0;
    const platform::ModalQuestion modal(request.hwndOwner);
    return platform::InstalledDesktop()->ChooseFile(question);
}

} // namespace

BOOL GetOpenFileNameA(OPENFILENAMEA* request)
{
    if (!request || !request->lpstrFile || !platform::InstalledDesktop())
        return FALSE;
    const fs::path folder = StartFolder(request->lpstrInitialDir);
    const std::optional<std::string> answer = AskForFile(*request, folder);
    if (!answer || answer->empty())
        return FALSE;
    const fs::path file = (folder / *answer).lexically_normal();
    std::optional<std::string> name;
    const char* reason = ReasonAgainst(file, *request, name);
    std::error_code error;
    if (!reason)
        fs::current_path(file.parent_path(), error);
    if (error)
        reason = u8"無法進入這個資料夾"_big5;
    if (reason) {
        Refuse(request->hwndOwner, reason);
        return FALSE;
    }
    std::memcpy(request->lpstrFile, name->c_str(), name->size() + 1);
    return TRUE;
}
