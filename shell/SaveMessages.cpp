#include "shell/SaveMessages.h"

#include "platform/Big5Literal.h"
#include "platform/Path.h"
#include "platform/User.h"
#include "shell/ShellContext.h"

namespace {

const char* WordsFor(platform::FileWriting reason)
{
    switch (reason) {
    case platform::FileWriting::DiskFull:
        return u8"磁碟已滿"_big5;
    case platform::FileWriting::NoPermission:
        return u8"沒有寫入的權限"_big5;
    case platform::FileWriting::ReadOnly:
        return u8"檔案或磁碟是唯讀的"_big5;
    case platform::FileWriting::NoFolder:
        return u8"沒有這個資料夾"_big5;
    case platform::FileWriting::NoOrdinaryFile:
        return u8"這個名稱不是一般的檔案"_big5;
    case platform::FileWriting::TooLarge:
        return u8"檔案超過大小限制"_big5;
    case platform::FileWriting::BadName:
        return u8"這個名稱不能當檔名"_big5;
    case platform::FileWriting::Done:
    case platform::FileWriting::Failed:
        break;
    }
    return u8"系統無法完成寫入"_big5;
}

void SayCannotSave(const std::string& text)
{
    MessageBoxA(Shell().mainWindow, text.c_str(), u8"無法存檔"_big5, MB_OK);
}

} // namespace

void SayTextCannotBeStored(const std::string& text)
{
    SayCannotSave(u8"這段文字含有雙引號: "_big5 + text);
}

void SayFileCannotBeWritten(const std::string& path, platform::FileWriting reason)
{
    SayCannotSave(u8"無法寫入 "_big5 + platform::DesktopPath(path) + ": " + WordsFor(reason));
}
