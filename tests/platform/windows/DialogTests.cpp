#include "platform/Big5Literal.h"
#include "tests/platform/windows/ScriptedProgram.h"

namespace {

using platform::DialogDriver;

class Dialogs : public ScriptedProgram {
protected:
    Dialogs()
    {
        onDialogMessage = [](HWND dialog, UINT message, WPARAM wParam) {
            if (message == WM_COMMAND && wParam == DoneButton)
                EndDialog(dialog, 42);
        };
    }

    // Opens the dialog and presses its button once the designer is done with it.
    void Work(const std::function<void(DialogDriver&)>& hands)
    {
        desktop.OnDialog([&](DialogDriver& dialog) {
            hands(dialog);
            dialog.Press(DoneButton);
        });
        EXPECT_EQ(RunDialog("Settings", desktop.MainWindow()), 42);
    }
};

LRESULT Ask(HWND dialog, int id, UINT message, int index = 0, const char* text = nullptr)
{
    return SendMessageA(GetDlgItem(dialog, id), message, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text));
}

void AddItems(HWND dialog, int id, const std::vector<const char*>& texts)
{
    for (const char* text : texts)
        Ask(dialog, id, CB_ADDSTRING, 0, text);
}

TEST_F(Dialogs, HaveTheirControlsWhereTheTemplatePutsThem)
{
    OpenWindow(); // its client area is (50, 60) to (250, 160), the dialog's 200 by 180
    Work([](DialogDriver& dialog) {
        const platform::Window& record = *dialog.Handle();
        EXPECT_EQ(dialog.Title(), "設定");
        EXPECT_EQ(record.place.left, 50);
        EXPECT_EQ(record.place.top, 60 + 50 - (180 + 32) / 2 + 29);
        EXPECT_EQ(GetDlgItem(dialog.Handle(), SortedList)->place.bottom, 128);
        EXPECT_EQ(GetDlgItem(dialog.Handle(), SortedList)->openHeight, 60);
    });
}

TEST_F(Dialogs, AreInitialisedBeforeTheyAreSeen)
{
    HWND owner = OpenWindow();
    onDialogMessage = [&](HWND dialog, UINT message, WPARAM) {
        if (message == WM_INITDIALOG) {
            EXPECT_TRUE(desktop.Dialogs().empty());
            SetWindowTextA(GetDlgItem(dialog, NameField), u8"王小明"_big5);
        }
    };
    desktop.OnDialog([](DialogDriver& dialog) {
        EXPECT_EQ(dialog.Text(NameField), "王小明");
        dialog.Move(5, 5);
        EndDialog(dialog.Handle(), 3);
    });
    EXPECT_EQ(RunDialog("SETTINGS", owner), 3);
    EXPECT_EQ(TakeLog(), (Log { "dialog init", "dialog placed", "dialog placed", "dialog destroy" }));

    onDialogMessage = [](HWND dialog, UINT message, WPARAM) {
        if (message == WM_INITDIALOG)
            EndDialog(dialog, 1);
    };
    EXPECT_EQ(RunDialog("SETTINGS", owner), 1);
    EXPECT_EQ(desktop.Dialogs().size(), 1U);
}

TEST_F(Dialogs, MayAnswerTheirCloseBoxThemselves)
{
    HWND owner = OpenWindow();
    onDialogMessage = [](HWND dialog, UINT message, WPARAM) {
        if (message == WM_CLOSE)
            EndDialog(dialog, 1);
    };
    desktop.OnDialog([](DialogDriver& dialog) {
        PostMessageA(dialog.Handle(), WM_CLOSE, 0, 0);
        EXPECT_TRUE(dialog.IsOpen());
    });
    EXPECT_EQ(RunDialog("BARE", owner), 1);
}

TEST_F(Dialogs, SortTheirListsByBytesAndKeepTheSelectedEntrySelected)
{
    Work([](DialogDriver& driver) {
        HWND dialog = driver.Handle();
        AddItems(dialog, SortedList, { u8"靜態影像"_big5, "b" });
        EXPECT_EQ(Ask(dialog, SortedList, CB_SETCURSEL, 1), 1);
        EXPECT_EQ(Ask(dialog, SortedList, CB_ADDSTRING, 0, u8"移動物件"_big5), 1);
        EXPECT_EQ(driver.Items(SortedList), (std::vector<std::string> { "b", "移動物件", "靜態影像" }));
        EXPECT_EQ(Ask(dialog, SortedList, CB_GETCURSEL), 2);
        EXPECT_EQ(driver.Text(SortedList), "靜態影像");
    });
}

TEST_F(Dialogs, DropTheSelectionWithTheEntryThatIsDeleted)
{
    struct Case {
        int deleted;
        LRESULT answer;
        int selection;
        const char* text;
    };
    for (const Case& each : { Case { 0, 3, 1, "c" }, Case { 2, 3, -1, "" }, Case { 3, 3, 2, "c" },
             Case { 4, CB_ERR, 2, "c" }, Case { -1, CB_ERR, 2, "c" } }) {
        Work([&](DialogDriver& driver) {
            HWND dialog = driver.Handle();
            AddItems(dialog, PlainList, { "a", "b", "c", "d" });
            driver.Select(PlainList, 2);
            EXPECT_EQ(Ask(dialog, PlainList, CB_DELETESTRING, each.deleted), each.answer);
            EXPECT_EQ(Ask(dialog, PlainList, CB_GETCURSEL), each.selection);
            EXPECT_EQ(driver.Text(PlainList), each.text);
            EXPECT_EQ(Ask(dialog, PlainList, CB_SETCURSEL, 9), CB_ERR);
            EXPECT_EQ(driver.Selection(PlainList), -1);
        });
    }
}

TEST_F(Dialogs, OwnTheMessageBoxesThatTheyShow)
{
    HWND owner = OpenWindow();
    onDialogMessage = [](HWND dialog, UINT message, WPARAM wParam) {
        if (message == WM_INITDIALOG || (message == WM_COMMAND && wParam == DoneButton))
            MessageBoxA(dialog, u8"輸入 <b>"_big5, u8"有誤"_big5, MB_OK);
    };
    HWND shown = nullptr;
    desktop.OnDialog([&](DialogDriver& dialog) {
        shown = dialog.Handle();
        dialog.Press(DoneButton);
        EXPECT_TRUE(dialog.Handle()->enabled);
        EndDialog(dialog.Handle(), 1);
    });
    RunDialog("SETTINGS", owner);
    ASSERT_EQ(desktop.MessageBoxes().size(), 2U);
    EXPECT_EQ(desktop.MessageBoxes()[0].owner, owner); // the dialog was not to be seen yet
    EXPECT_EQ(desktop.MessageBoxes()[1].owner, shown);
    EXPECT_EQ(desktop.MessageBoxes()[1].text, "輸入 <b>");
    EXPECT_EQ(desktop.MessageBoxes()[1].caption, "有誤");
}

TEST_F(Dialogs, GoWithTheirOwner)
{
    HWND owner = OpenWindow();
    desktop.OnDialog([&](DialogDriver& dialog) {
        SendMessageA(owner, WM_CLOSE, 0, 0);
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_EQ(RunDialog("SETTINGS", owner), -1);
    EXPECT_EQ(TakeLog(), (Log { "dialog init", "dialog placed", "close", "dialog destroy", "destroy" }));
}

TEST_F(Dialogs, ThatNobodyCanMakeOrAnswerAreNotSilent)
{
    HWND owner = OpenWindow();
    EXPECT_EQ(RunDialog("SETTING", owner), 0);
    EXPECT_EQ(DialogBoxParamA(nullptr, "SETTINGS", owner, DialogProcedure, 0), 0);
    EXPECT_TRUE(desktop.TakeProblems().empty());
    EXPECT_EQ(RunDialog("BARE", owner), 0);
    EXPECT_EQ(desktop.TakeProblems().size(), 1U);
    Work([&](DialogDriver& dialog) {
        dialog.SetText(SizeField, "8");
        dialog.Press(99);
        dialog.Select(PlainList, 0);
        EXPECT_EQ(desktop.TakeProblems().size(), 3U);
        EXPECT_EQ(dialog.Text(SizeField), "9");
    });
}

TEST(ScriptedDesktopDeathTest, DoesNotLetAForgottenAnswerPass)
{
    EXPECT_DEATH(
        {
            platform::ScriptedDesktop desktop;
            desktop.OnDialog([](DialogDriver&) {});
        },
        "a dialog that was expected never opened");
}

} // namespace
