#include "shell/CommandButtons.h"

#include "objects/ScreenObject.h"
#include "platform/Big5Literal.h"
#include "platform/User.h"
#include "shell/ObjectCommands.h"
#include "shell/ScriptCommands.h"
#include "shell/WindowLayout.h"

#include <span>

namespace {

struct Command {
    WORD id;
    const char* caption;
    void (*run)();
};

// From the top of the strip downwards.
std::span<const Command> Commands()
{
    static const Command commands[] = {
        { CommandLoadPicture, u8"從檔案載入影像"_big5, LoadPicture },
        { CommandLoadButton, u8"從檔案載入按鈕"_big5, LoadButton },
        { CommandLoadAnimation, u8"從檔案載入動畫"_big5, LoadAnimation },
        { CommandInsertWord, u8"插入文字"_big5, InsertWord },
        { CommandInsertCheckBox, "CheckBox", InsertCheckBox },
        { CommandInsertSelectbox, "Selectbox", InsertSelectbox },
        { CommandLoadScript, u8"讀入設定檔"_big5, LoadScript },
        { CommandSaveScriptAs, u8"另存新檔"_big5, SaveScriptAs },
        { CommandNew, u8"開新檔案"_big5, StartNewScreen },
    };
    return commands;
}

} // namespace

void CreateCommandButtons(HWND window)
{
    constexpr int width = ClientWidth - ScreenWidth;
    constexpr int height = 30;

    auto* instance = reinterpret_cast<HINSTANCE>(GetWindowLongA(window, GWL_HINSTANCE));
    int y = 0;
    for (const Command& command : Commands()) {
        CreateWindowExA(0, "BUTTON", command.caption, WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, ScreenWidth, y, width,
            height, window, ControlId(command.id), instance, nullptr);
        y += height;
    }
}

void RunButtonCommand(WORD id)
{
    for (const Command& command : Commands())
        if (command.id == id)
            return command.run();
}
