#include "shell/FileDialogs.h"

#include "platform/Big5Literal.h"
#include "platform/Comdlg.h"
#include "platform/User.h"
#include "shell/ShellContext.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace {

bool RunFileDialog(PathBuffer& path, const std::string& label, const std::string& pattern, DWORD flags)
{
    std::fill(std::begin(path), std::end(path), '\0');
    const std::string filter = label + '\0' + pattern + '\0';
    OPENFILENAMEA request;
    request.hwndOwner = Shell().mainWindow;
    request.lpstrFilter = filter.c_str();
    request.nFilterIndex = 1;
    request.lpstrFile = path;
    request.nMaxFile = PathBufferSize;
    request.lpstrInitialDir = "Image\\";
    request.Flags = flags;
    return GetOpenFileNameA(&request) == TRUE;
}

bool Contains(const PathBuffer& path, const char* part)
{
    return std::string(path).find(part) != std::string::npos;
}

} // namespace

bool OpenImageFileDialog(PathBuffer& path)
{
    return RunFileDialog(path, u8"影像檔"_big5, "*.bmp", OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST);
}

bool OpenScriptFileDialog(PathBuffer& path)
{
    return RunFileDialog(path, u8"Tobrik設定檔"_big5, "*.tobrik", OFN_PATHMUSTEXIST);
}

// A name such as data.bmp is refused as well: it cannot be told from the alpha companion of dat.bmp.
bool CheckIsNoAlphaFile(const PathBuffer& path)
{
    if (!Contains(path, "a.bmp"))
        return true;
    MessageBoxA(Shell().mainWindow, u8"請勿點選 *a.bmp 的 alpha 檔案"_big5, u8"無法 Show Alpha file"_big5, MB_OK);
    return false;
}

bool CheckIsScriptFile(const PathBuffer& path)
{
    if (Contains(path, ".tobrik"))
        return true;
    MessageBoxA(Shell().mainWindow, u8"請點選 *.tobrik檔案"_big5, u8"非所設定的資源檔"_big5, MB_OK);
    return false;
}
