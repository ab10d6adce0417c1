#include "objects/ButtonObject.h"
#include "objects/SelectboxObject.h"
#include "platform/Big5Literal.h"
#include "tests/shell/EditorTest.h"

#include <filesystem>

namespace {

TEST_F(AllKinds, LieOnTopOfEachOtherInTheOrderOfTheirMaking)
{
    const ObjectKind kinds[] = { KindPicture, KindButton, KindAnimation, KindWord, KindCheckBox, KindSelectbox };
    ASSERT_EQ(shell.editing.GetObjectCount(), 6);
    for (int32_t i = 0; i < 6; ++i) {
        EXPECT_EQ(ObjectAt(i).GetKind(), kinds[i]);
        EXPECT_EQ(ObjectAt(i).GetLayer(), i);
    }
    EXPECT_EQ(ObjectAt<SelectboxObject>(Selectbox).GetCount(), 5);
    EXPECT_EQ(ObjectAt<SelectboxObject>(Selectbox).GetString(4), u8"第五個選項"_big5);
    EXPECT_EQ(desktop.Focus(), shell.mainWindow);
}

TEST_F(AllKinds, FollowTheMouse)
{
    const auto& button = ObjectAt<ButtonObject>(Button);
    desktop.Press(On(Button).x, On(Button).y);
    desktop.Do([&] { EXPECT_EQ(button.GetSection(), 2); });
    desktop.Release(On(Button).x, On(Button).y);
    Play();
    EXPECT_EQ(button.GetSection(), 1);
}

class ObjectCommands : public EditorTest { };

TEST_F(ObjectCommands, TakeAnyPictureButAnAlphaFile)
{
    const std::string alphaFile = WritePicture("data.bmp", 4, 4);
    const std::string half = WritePicture("half.bmp", 40, 30); // cannot be loaded
    std::filesystem::resize_file(half, 100);
    int32_t made = 0;
    for (const int id : { 100, 101, 102 }) {
        desktop.CancelFileDialog();
        desktop.AnswerFileDialog(alphaFile);
        desktop.AnswerFileDialog(half);
        for (int i = 0; i < 3; ++i)
            desktop.ClickButton(id);
        desktop.Click(5, 5);
        Play();
        EXPECT_EQ(shell.editing.GetObjectCount(), ++made);
    }
    EXPECT_EQ(desktop.MessageBoxes().size(), 3U);
    EXPECT_EQ(LatestMessage(), "無法 Show Alpha file: 請勿點選 *a.bmp 的 alpha 檔案");
    const platform::FileRequest& request = desktop.FileDialogs()[0];
    EXPECT_EQ(request.label + request.pattern, "影像檔*.bmp");
    EXPECT_EQ(std::filesystem::path(request.folder).filename(), "Image");
    EXPECT_TRUE(request.mustExist);
}

} // namespace
