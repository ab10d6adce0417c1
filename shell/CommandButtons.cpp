#include "shell/CommandButtons.h"

#include "objects/ScreenObject.h"
#include "platform/Big5Literal.h"
#include "platform/User.h"
#include "shell/MainWindow.h"

void CreateCommandButtons(HWND window)
{
    struct Command {
        WORD id;
        const char* caption;
    };
    const Command commands[] = {
        { CommandLoadPicture, u8"從檔案載入影像"_big5 },
        { CommandLoadButton, u8"從檔案載入按鈕"_big5 },
        { CommandLoadAnimation, u8"從檔案載入動畫"_big5 },
        { CommandInsertWord, u8"插入文字"_big5 },
        { CommandInsertCheckBox, "CheckBox" },
        { CommandInsertSelectbox, "Selectbox" },
        { CommandLoadScript, u8"讀入設定檔"_big5 },
        { CommandSaveScriptAs, u8"另存新檔"_big5 },
        { CommandNew, u8"開新檔案"_big5 },
    };
    constexpr int width = ClientWidth - ScreenWidth;
    constexpr int height = 30;

    auto* instance = reinterpret_cast<HINSTANCE>(GetWindowLongA(window, GWL_HINSTANCE));
    int y = 0;
    for (const Command& command : commands) {
        CreateWindowExA(0, "BUTTON", command.caption, WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, ScreenWidth, y, width,
            height, window, ControlId(command.id), instance, nullptr);
        y += height;
    }
}
