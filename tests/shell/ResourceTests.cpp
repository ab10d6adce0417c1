#include "platform/CodePage.h"
#include "resources/ProgramResources.h"
#include "tests/shell/EditorTest.h"

#include <sstream>

namespace {

// One line a row of the dialog: labels and frames with the control that they name; the buttons. Rectangles are (x, y,
// width, height).
constexpr const char* dialogs = R"rows(
IMAGEDIALOG "影像的資訊 and 設定" 113 x 160
  label "影像狀態" (11, 8, 33, 8); list 1002 sorted (48, 7, 61, 30)
  label "影像播放" (11, 28, 33, 8); list 1020 (48, 26, 61, 30)
  frame "影像大小" (4, 47, 106, 55); label "長" (20, 63, 9, 8); edit 1003 display only (45, 61, 49, 12)
  label "寬" (21, 83, 9, 8); edit 1004 display only (45, 81, 48, 12)
  label "影像 Alpha 值" (11, 109, 48, 8); edit 1005 digits only (66, 107, 44, 14)
  box 1015 "畫面 Boundary 的偵側" (10, 125, 92, 10)
  button 1006 "確認修改" (34, 142, 37, 14)
BUTTONDIALOG "Button 的資訊 and 設定" 107 x 126
  frame "動畫的大小" (7, 5, 94, 57); label "長" (17, 22, 9, 8); edit 1012 display only (30, 20, 61, 14)
  label "寬" (17, 41, 9, 8); edit 1013 display only (30, 39, 61, 14)
  label "切段數量" (9, 73, 33, 8); list 1014 (48, 71, 48, 30)
  box 1017 "畫面 Boundary 的偵側" (8, 91, 92, 10)
  button 1006 "確認修改" (33, 104, 37, 14)
ANIMATIONDIALOG "動畫的資訊 and 設定" 106 x 130
  frame "動畫的大小" (7, 5, 94, 57); label "長" (17, 22, 9, 8); edit 1007 display only (33, 19, 54, 14)
  label "寬" (17, 41, 9, 8); edit 1008 display only (33, 39, 54, 14)
  label "影像切段數量" (8, 70, 49, 8); list 1010 (60, 68, 41, 33)
  label "動畫播放時間 (ms)" (7, 93, 65, 8); edit 1011 digits only (72, 90, 28, 14)
  button 1006 "確認修改" (29, 110, 37, 14)
CHECKBOXPROP "CheckBox 特性設定" 123 x 54, close box
  label "所寫的字串" (10, 15, 41, 8); edit 1027 (55, 13, 62, 14)
  button 1006 "確定修改" (7, 35, 50, 14); button 1031 "取消修改" (62, 35, 50, 14)
SELECTBOXADDSTRING "新增 Selectbox String" 173 x 92, close box
  label "Selectbox 現有的情形" (7, 8, 75, 8); list 1032 (88, 7, 77, 30)
  label "所想要新增的字串" (7, 30, 65, 8); edit 1034 (88, 27, 76, 14)
  label "要刪除的 String Index" (7, 52, 74, 8); list 1036 (87, 51, 77, 30)
  button 1006 "新增字串" (6, 70, 50, 14); button 1037 "刪除字串" (60, 70, 50, 14); button 1035 "確定" (114, 70, 50, 14)
WORDOBJECTADDITION "輸入想產生的字串" 149 x 125, close box
  label "所想加入的字串" (13, 18, 57, 8); edit 1023 (74, 14, 63, 14)
  label "紅 ( Red )" (21, 38, 32, 8); edit 1024 digits only (74, 33, 40, 14)
  label "綠 ( Green )" (20, 56, 39, 8); edit 1025 digits only (74, 52, 40, 14)
  label "藍 ( Blue )" (20, 76, 34, 8); edit 1026 digits only (74, 71, 40, 14)
  button 1006 "確定新增" (20, 95, 50, 14); button 1022 "取消新增" (78, 94, 50, 14)
)rows";

constexpr const char* menus = R"(
PopUpMenu: 32772 "物件特性", 32774 "推至最下層", 32775 "拉至最上層",
AnimationPopMenu: 32776 "Play", 32777 "Pause", 32778 "Restart", 32779 "動畫特性",
CheckBoxPopMenu: 32780 "改變 CheckBox 狀態", 32781 "CheckBox 特性",
SelectboxPopMenu: 32782 "變更選項",
)";

constexpr const char* commandButtons = R"(
100 "從檔案載入影像" (800, 0, 200, 30)
101 "從檔案載入按鈕" (800, 30, 200, 30)
102 "從檔案載入動畫" (800, 60, 200, 30)
103 "插入文字" (800, 90, 200, 30)
105 "CheckBox" (800, 120, 200, 30)
106 "Selectbox" (800, 150, 200, 30)
110 "讀入設定檔" (800, 180, 200, 30)
111 "另存新檔" (800, 210, 200, 30)
104 "開新檔案" (800, 240, 200, 30)
)";

template <class... Parts> std::string Text(const Parts&... parts)
{
    std::ostringstream out;
    (out << ... << parts);
    return out.str();
}

std::string Rectangle(int x, int y, int width, int height)
{
    return Text(" (", x, ", ", y, ", ", width, ", ", height, ")");
}

std::string Described(const platform::DialogControl& control)
{
    constexpr const char* kinds[] = { "label", "frame", "edit", "list", "box", "button" };
    return Text(kinds[static_cast<size_t>(control.kind)], control.id == -1 ? "" : Text(" ", control.id),
        *control.text ? Text(" \"", control.text, "\"") : "", control.displayOnly ? " display only" : "",
        control.digitsOnly ? " digits only" : "", control.sorted ? " sorted" : "",
        Rectangle(control.x, control.y, control.width, control.height));
}

TEST(ProgramResources, HoldTheSixDialogs)
{
    std::string found;
    for (const auto& dialog : ProgramResources().dialogs) {
        found += Text("\n", dialog.name, " \"", dialog.title, "\" ", dialog.width, " x ", dialog.height,
            dialog.closeBox ? ", close box\n" : "\n");
        const char* before = "  ";
        for (const auto& control : dialog.controls) {
            found += before + Described(control);
            before = control.id == -1 || control.kind == platform::ControlKind::PushButton ? "; " : "\n  ";
        }
    }
    EXPECT_EQ(found + "\n", dialogs);
}

TEST(ProgramResources, HoldTheFourContextMenus)
{
    std::string found;
    for (const auto& menu : ProgramResources().menus) {
        found += Text("\n", menu.name, ":");
        for (const auto& item : menu.items)
            found += Text(" ", item.id, " \"", item.text, "\",");
    }
    EXPECT_EQ(found + "\n", menus);
}

class CommandButtons : public EditorTest { };

TEST_F(CommandButtons, StandBesideTheCanvas)
{
    std::string found;
    for (const auto& button : shell.mainWindow->children) {
        const RECT& place = button->place;
        found += Text("\n", button->id, " \"", platform::Utf8FromCodePage(button->text), "\"",
            Rectangle(place.left, place.top, place.right - place.left, place.bottom - place.top));
        EXPECT_TRUE(button->visible);
    }
    EXPECT_EQ(found + "\n", commandButtons);
}

} // namespace
