#include "objects/AnimationObject.h"
#include "objects/ButtonObject.h"
#include "objects/SelectboxObject.h"
#include "platform/Big5Literal.h"
#include "platform/User.h"
#include "tests/shell/EditorTest.h"

#include <filesystem>

namespace {

class ObjectCommands : public EditorTest { };

TEST_F(ObjectCommands, PutEachKindOnTopAtItsDefaultPlace)
{
    WritePicture("logo.bmp", 40, 30);
    const std::string logo = std::filesystem::absolute("Image/logo.bmp").string();
    for (const int id : { 100, 101, 102 }) {
        desktop.AnswerFileDialog(logo);
        desktop.ClickButton(id);
    }
    desktop.ClickButton(106);
    Play();
    const ObjectKind kinds[] = { KindPicture, KindButton, KindAnimation, KindSelectbox };
    ASSERT_EQ(shell.editing.GetObjectCount(), 4);
    for (int32_t i = 0; i < 4; ++i) {
        EXPECT_EQ(ObjectAt(i).GetKind(), kinds[i]);
        EXPECT_EQ(ObjectAt(i).GetLayer(), i);
        EXPECT_EQ(ObjectAt(i).GetPos(), vec(0, 0));
    }
    EXPECT_EQ(dynamic_cast<PictureObject&>(ObjectAt(0)).GetMode(), ModeMoving);
    EXPECT_EQ(dynamic_cast<ButtonObject&>(ObjectAt(1)).GetMode(), ModeButton);
    EXPECT_EQ(dynamic_cast<ButtonObject&>(ObjectAt(1)).GetSections(), 4);
    EXPECT_EQ(dynamic_cast<AnimationObject&>(ObjectAt(2)).GetMode(), ModeAnimation);
    EXPECT_EQ(Selected(), std::vector<int32_t> {});
    EXPECT_EQ(desktop.Focus(), shell.mainWindow);
}

TEST_F(ObjectCommands, SelectBoxStartsWithFiveChoicesAndItsBuiltInPictures)
{
    desktop.ClickButton(106);
    Play();
    const auto& selectbox = dynamic_cast<SelectboxObject&>(ObjectAt(0));
    ASSERT_EQ(selectbox.GetCount(), 5);
    EXPECT_EQ(selectbox.GetString(0), u8"第一個選項"_big5);
    EXPECT_EQ(selectbox.GetString(4), u8"第五個選項"_big5);
    EXPECT_EQ(selectbox.GetSize(), vec(120, 20));
}

TEST_F(ObjectCommands, AskForPicturesInTheImageFolder)
{
    desktop.CancelFileDialog();
    desktop.ClickButton(100);
    Play();
    ASSERT_EQ(desktop.FileDialogs().size(), 1U);
    const platform::FileRequest& request = desktop.FileDialogs()[0];
    EXPECT_EQ(request.label, "影像檔");
    EXPECT_EQ(request.pattern, "*.bmp");
    EXPECT_EQ(std::filesystem::path(request.folder).filename(), "Image");
    EXPECT_TRUE(request.mustExist);
    EXPECT_EQ(shell.document.GetObjectCount(), 0);
    EXPECT_TRUE(desktop.MessageBoxes().empty());
}

TEST_F(ObjectCommands, RefuseEveryNameThatHoldsAnAlphaFileName)
{
    WritePicture("data.bmp", 4, 4);
    const std::string alphaFile = std::filesystem::absolute("Image/data.bmp").string();
    for (const int id : { 100, 101, 102 }) {
        desktop.AnswerFileDialog(alphaFile);
        desktop.ClickButton(id);
        Play();
        EXPECT_EQ(LatestMessage(), "無法 Show Alpha file: 請勿點選 *a.bmp 的 alpha 檔案");
        EXPECT_EQ(desktop.MessageBoxes().back().owner, shell.mainWindow);
    }
    EXPECT_EQ(shell.document.GetObjectCount(), 0);
}

TEST_F(ObjectCommands, AddAnObjectWhosePictureCannotBeLoaded)
{
    WritePicture("half.bmp", 40, 30);
    std::filesystem::resize_file("Image/half.bmp", 100);
    const std::string half = std::filesystem::absolute("Image/half.bmp").string();
    for (const int id : { 100, 101, 102 }) {
        desktop.AnswerFileDialog(half);
        desktop.ClickButton(id);
    }
    desktop.Click(5, 5);
    desktop.Key('P');
    Play();
    EXPECT_EQ(shell.document.GetObjectCount(), 3);
    EXPECT_EQ(Selected(), std::vector<int32_t> {});
}

TEST_F(ObjectCommands, NewEmptiesTheScreenAndKeepsTheBackground)
{
    AddPicture({ 10, 10 }, { 40, 30 });
    desktop.Click(20, 20);
    Play();
    shell.editing.SetFileName("x.tobrik");
    const uint32_t background = desktop.Pixel(300, 300);
    desktop.ClickButton(104);
    Play();
    EXPECT_EQ(shell.editing.GetObjectCount(), 0);
    EXPECT_EQ(shell.editing.GetCurrentObject(), nullptr);
    EXPECT_EQ(shell.editing.GetPressPoint(), vec(0, 0));
    EXPECT_FALSE(shell.editing.HasFileName());
    EXPECT_EQ(desktop.Pixel(300, 300), background);
    EXPECT_EQ(desktop.Pixel(20, 20), background);
}

TEST_F(ObjectCommands, IdsWithoutACommandOnlyGiveTheFocusBack)
{
    for (const WPARAM id : { 107, 108, 109, 112, 32773, 32783 })
        SendMessageA(shell.mainWindow, WM_COMMAND, id, 0);
    EXPECT_EQ(shell.document.GetObjectCount(), 0);
    EXPECT_EQ(desktop.Focus(), shell.mainWindow);
}

} // namespace
