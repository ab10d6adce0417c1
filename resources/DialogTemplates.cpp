#include "resources/DialogTemplates.h"

#include "resources/ResourceIds.h"

namespace {

using platform::DialogControl;
using enum platform::ControlKind;

constexpr int noId = -1; // labels and frames

// Rectangles are x, y, width, height in dialog units.
constexpr DialogControl DisplayEdit(int id, int x, int y, int width, int height)
{
    return {
        .kind = Edit, .id = id, .text = "", .x = x, .y = y, .width = width, .height = height, .displayOnly = true
    };
}

constexpr DialogControl DigitsEdit(int id, int x, int y, int width, int height)
{
    return { .kind = Edit, .id = id, .text = "", .x = x, .y = y, .width = width, .height = height, .digitsOnly = true };
}

constexpr DialogControl SortedDropDown(int id, int x, int y, int width, int height)
{
    return { .kind = DropDown, .id = id, .text = "", .x = x, .y = y, .width = width, .height = height, .sorted = true };
}

constexpr DialogControl imageControls[] = {
    { Label, noId, "影像狀態", 11, 8, 33, 8 },
    SortedDropDown(PictureModeList, 48, 7, 61, 30),
    { Label, noId, "影像播放", 11, 28, 33, 8 },
    { DropDown, PictureEffectList, "", 48, 26, 61, 30 },
    { GroupFrame, noId, "影像大小", 4, 47, 106, 55 },
    { Label, noId, "長", 20, 63, 9, 8 },
    DisplayEdit(PictureWidthField, 45, 61, 49, 12),
    { Label, noId, "寬", 21, 83, 9, 8 },
    DisplayEdit(PictureHeightField, 45, 81, 48, 12),
    { Label, noId, "影像 Alpha 值", 11, 109, 48, 8 },
    DigitsEdit(PictureAlphaField, 66, 107, 44, 14),
    { CheckBox, PictureBoundaryCheck, "畫面 Boundary 的偵側", 10, 125, 92, 10 },
    { PushButton, ConfirmButton, "確認修改", 34, 142, 37, 14 },
};

constexpr DialogControl buttonControls[] = {
    { GroupFrame, noId, "動畫的大小", 7, 5, 94, 57 },
    { Label, noId, "長", 17, 22, 9, 8 },
    DisplayEdit(ButtonWidthField, 30, 20, 61, 14),
    { Label, noId, "寬", 17, 41, 9, 8 },
    DisplayEdit(ButtonHeightField, 30, 39, 61, 14),
    { Label, noId, "切段數量", 9, 73, 33, 8 },
    { DropDown, ButtonSectionList, "", 48, 71, 48, 30 },
    { CheckBox, ButtonBoundaryCheck, "畫面 Boundary 的偵側", 8, 91, 92, 10 },
    { PushButton, ConfirmButton, "確認修改", 33, 104, 37, 14 },
};

constexpr DialogControl animationControls[] = {
    { GroupFrame, noId, "動畫的大小", 7, 5, 94, 57 },
    { Label, noId, "長", 17, 22, 9, 8 },
    DisplayEdit(AnimationWidthField, 33, 19, 54, 14),
    { Label, noId, "寬", 17, 41, 9, 8 },
    DisplayEdit(AnimationHeightField, 33, 39, 54, 14),
    { Label, noId, "影像切段數量", 8, 70, 49, 8 },
    { DropDown, AnimationSectionList, "", 60, 68, 41, 33 },
    { Label, noId, "動畫播放時間 (ms)", 7, 93, 65, 8 },
    DigitsEdit(AnimationIntervalField, 72, 90, 28, 14),
    { PushButton, ConfirmButton, "確認修改", 29, 110, 37, 14 },
};

constexpr DialogControl checkBoxControls[] = {
    { Label, noId, "所寫的字串", 10, 15, 41, 8 },
    { Edit, CheckBoxTextField, "", 55, 13, 62, 14 },
    { PushButton, ConfirmButton, "確定修改", 7, 35, 50, 14 },
    { PushButton, CheckBoxCancelButton, "取消修改", 62, 35, 50, 14 },
};

constexpr DialogControl selectboxControls[] = {
    { Label, noId, "Selectbox 現有的情形", 7, 8, 75, 8 },
    { DropDown, ChoiceList, "", 88, 7, 77, 30 },
    { Label, noId, "所想要新增的字串", 7, 30, 65, 8 },
    { Edit, NewChoiceField, "", 88, 27, 76, 14 },
    { Label, noId, "要刪除的 String Index", 7, 52, 74, 8 },
    { DropDown, DeleteChoiceList, "", 87, 51, 77, 30 },
    { PushButton, ConfirmButton, "新增字串", 6, 70, 50, 14 },
    { PushButton, DeleteChoiceButton, "刪除字串", 60, 70, 50, 14 },
    { PushButton, ChoicesDoneButton, "確定", 114, 70, 50, 14 },
};

constexpr DialogControl wordControls[] = {
    { Label, noId, "所想加入的字串", 13, 18, 57, 8 },
    { Edit, WordTextField, "", 74, 14, 63, 14 },
    { Label, noId, "紅 ( Red )", 21, 38, 32, 8 },
    DigitsEdit(WordRedField, 74, 33, 40, 14),
    { Label, noId, "綠 ( Green )", 20, 56, 39, 8 },
    DigitsEdit(WordGreenField, 74, 52, 40, 14),
    { Label, noId, "藍 ( Blue )", 20, 76, 34, 8 },
    DigitsEdit(WordBlueField, 74, 71, 40, 14),
    { PushButton, ConfirmButton, "確定新增", 20, 95, 50, 14 },
    { PushButton, WordCancelButton, "取消新增", 78, 94, 50, 14 },
};

// Name, title, size, close box.
constexpr platform::DialogTemplate templates[] = {
    { "IMAGEDIALOG", "影像的資訊 and 設定", 113, 160, false, imageControls },
    { "BUTTONDIALOG", "Button 的資訊 and 設定", 107, 126, false, buttonControls },
    { "ANIMATIONDIALOG", "動畫的資訊 and 設定", 106, 130, false, animationControls },
    { "CHECKBOXPROP", "CheckBox 特性設定", 123, 54, true, checkBoxControls },
    { "SELECTBOXADDSTRING", "新增 Selectbox String", 173, 92, true, selectboxControls },
    { "WORDOBJECTADDITION", "輸入想產生的字串", 149, 125, true, wordControls },
};

} // namespace

const std::span<const platform::DialogTemplate> dialogTemplates = templates;
