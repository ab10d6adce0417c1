#include "platform/Desktop.h"
#include "platform/Menu.h"
#include "tests/platform/conformance/DesktopHands.h"
#include "tests/platform/windows/WindowProgram.h"

#include <algorithm>
#include <tuple>

namespace {

// What every desktop does.
class Conformance : public WindowProgram {
protected:
    Conformance()
    {
        window = OpenWindow(CS_DBLCLKS);
        Settled();
        onWindowMessage = [](HWND, UINT message) { return LRESULT { message == WM_CLOSE }; };
        onDialogMessage = [](HWND dialog, UINT message, WPARAM wParam) {
            if (message == WM_COMMAND && wParam == DoneButton)
                EndDialog(dialog, 42);
        };
    }

    // Works in the dialog "SETTINGS" and closes it with its button.
    void Work(DesktopHands::Steps steps)
    {
        steps.push_back([this] { hands->Click(DoneButton); });
        hands->WorkInDialog(steps);
        EXPECT_EQ(RunDialog("Settings", window), 42);
    }

    static void Choose(HWND owner)
    {
        TrackPopupMenu(
            GetSubMenu(LoadMenuA(&testResources, "Colours"), 0), TPM_RIGHTBUTTON, 300, 300, 0, owner, nullptr);
    }

    std::unique_ptr<DesktopHands> hands = MakeHands();
    HWND window = nullptr;
};

TEST_F(Conformance, InputComesInTheOrderInWhichItWasMade)
{
    PostMessageA(window, WM_COMMAND, 5, 0);
    hands->Key(VK_LEFT);
    hands->ClickButton(); // is sent, but does not overtake what is queued
    hands->Key('S', true);
    hands->CloseBox();
    EXPECT_EQ(Settled(), (Log { "command 5", "key 37", "command 7", "key 83 ctrl", "close" }));
    hands->ClickButton();
    MSG none;
    EXPECT_FALSE(PeekMessageA(&none, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(TakeLog(), Log { "command 7" });
}

TEST_F(Conformance, AQuitRequestComesBehindWhatIsQueuedAndBeforeNewInput)
{
    PostQuitMessage(16);
    PostMessageA(window, WM_COMMAND, 5, 0);
    hands->Key(VK_LEFT);
    hands->ClickButton();
    MSG taken;
    ASSERT_TRUE(PeekMessageA(&taken, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(taken.message, WM_COMMAND);
    ASSERT_TRUE(PeekMessageA(&taken, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(taken.message, WM_QUIT);
    EXPECT_EQ(taken.wParam, 16U);
    EXPECT_EQ(Settled(), (Log { "key 37", "command 7" }));
}

TEST_F(Conformance, TheMouseIsFollowedOutsideAndOverButtonsOnlyWhileItIsCaptured)
{
    for (const bool captures : { false, true }) {
        onWindowMessage = [&](HWND pressed, UINT message) {
            if (message == WM_LBUTTONDOWN && captures)
                SetCapture(pressed);
            if (message == WM_LBUTTONUP)
                ReleaseCapture();
            return LRESULT { 0 };
        };
        hands->MoveTo({ 199, 99 });
        Settled();
        // The whole drag is over before the program sees its beginning.
        hands->Press({ 199, 99 });
        hands->MoveTo({ 19, 9 }); // on the button
        hands->MoveTo({ -5, 300 });
        hands->Release({ -5, 300 });
        hands->MoveTo({ 200, 50 });
        hands->MoveTo({ 10, 10 }); // beside the button
        EXPECT_EQ(Settled(),
            captures ? (Log { "press 199 99 1", "move 19 9 1", "move -5 300 1", "release -5 300 0", "move 10 10 0" })
                     : (Log { "press 199 99 1", "move 10 10 0" }));
    }
}

TEST_F(Conformance, ADoubleClickIsToldOnlyToAClassThatAsksForIt)
{
    for (const bool asks : { true, false }) {
        window->wantsDoubleClicks = asks;
        const std::string at = asks ? " 100 50 " : " 150 70 ";
        const POINT point = asks ? POINT { 100, 50 } : POINT { 150, 70 };
        hands->MoveTo(point);
        Settled();
        hands->DoubleClick(point);
        EXPECT_EQ(Settled(),
            (Log { "press" + at + "1", "release" + at + "0", (asks ? "double" : "press") + at + "1",
                "release" + at + "0" }));
    }
}

TEST_F(Conformance, AHeldKeyRepeats)
{
    hands->HoldKey(VK_DOWN, 3);
    EXPECT_EQ(Settled(), Log(3, "key 40"));
}

TEST_F(Conformance, AMenusChoiceIsPostedBeforeThePointerIsTold)
{
    // Not where it lies on the button or outside.
    const std::tuple<size_t, POINT, Log> choices[] = { { 1, { 120, 60 }, { "command 12", "move 120 60 0" } },
        { 0, { 5, 5 }, { "command 11" } }, { 1, { -9, 60 }, { "command 12" } } };
    for (const auto& [item, pointer, expected] : choices) {
        hands->ChooseFromMenu(item, pointer);
        Choose(window);
        EXPECT_EQ(TakeLog(), Log {});
        EXPECT_EQ(Settled(), expected);
    }
    EXPECT_EQ(Settled(), Log {});
}

TEST_F(Conformance, ThePointerIsInAWindowThatNothingCoversWhileNoButtonIsHeld)
{
    platform::Desktop& desktop = *platform::InstalledDesktop();
    hands->PointTo({ 120, 60 });
    const auto at = desktop.PointerIn(*window);
    ASSERT_TRUE(at);
    EXPECT_EQ(at->x, 120);
    EXPECT_EQ(at->y, 60);
    hands->Press({ 120, 60 });
    Settled();
    EXPECT_FALSE(desktop.PointerIn(*window));
    hands->Release({ 120, 60 });
    Settled();
    EXPECT_TRUE(desktop.PointerIn(*window));
    HWND other = OpenWindow();
    Settled();
    EXPECT_FALSE(desktop.PointerIn(*window));
    ShowWindow(other, 0);
    EXPECT_TRUE(desktop.PointerIn(*window));
}

TEST_F(Conformance, ADialogKeepsInputFromItsOwnerButNotItsMessages)
{
    SetCapture(window);
    PostQuitMessage(16);
    Work({ [this] { hands->DisturbOwner(); }, [this] { PostMessageA(window, WM_COMMAND, 8, 0); } });
    Log noted = Settled();
    std::erase_if(noted, [](const auto& note) { return note.starts_with("dialog"); });
    EXPECT_EQ(noted, Log { "command 8" });
    MSG quit;
    EXPECT_TRUE(PeekMessageA(&quit, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(quit.message, WM_QUIT);
    hands->Press({ -9, 50 }); // the capture has ended
    hands->Release({ -9, 50 });
    hands->Key(VK_DELETE);
    EXPECT_EQ(Settled(), Log { "key 46" });
}

TEST_F(Conformance, AClickIsDealtWithToTheEndBeforeTheNextInputComes)
{
    onWindowMessage = [this](HWND, UINT message) {
        if (message == WM_COMMAND) {
            EXPECT_EQ(RunDialog("Settings", window), 42);
            hands->Key(VK_DELETE);
            MSG next;
            EXPECT_FALSE(PeekMessageA(&next, nullptr, 0, 0, PM_REMOVE));
        }
        return LRESULT { 0 };
    };
    hands->WorkInDialog({ [this] { hands->Click(DoneButton); } });
    hands->ClickButton();
    EXPECT_EQ(Settled(), (Log { "command 7", "dialog init", "dialog command 7", "dialog destroy", "key 46" }));
}

TEST_F(Conformance, ADialogsKeysAndCloseBoxAreCommands)
{
    Work({ [this] { Settled(); }, [this] { hands->DialogKey(VK_RETURN); }, [this] { hands->DialogKey(VK_ESCAPE); },
        [this] { hands->DialogCloseBox(); },
        [this] {
            const Log commands { "dialog command 1", "dialog command 2", "dialog close", "dialog command 2" };
            EXPECT_EQ(Settled(), commands);
        } });
}

TEST_F(Conformance, ADialogsControlsHoldWhatIsTypedAndTicked)
{
    HWND dialog = nullptr;
    const auto ask = [&](int id, UINT message) { return SendMessageA(GetDlgItem(dialog, id), message, 0, 0); };
    onDialogMessage = [&](HWND open, UINT message, WPARAM wParam) {
        dialog = open;
        if (message == WM_INITDIALOG) {
            SendMessageA(GetDlgItem(open, PlainList), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("a"));
            SendMessageA(GetDlgItem(open, PlainList), CB_SETCURSEL, 0, 0);
        }
        if (message == WM_COMMAND && wParam == DoneButton)
            EndDialog(open, 42);
    };
    Work({ [this] { hands->Type(NameField, "<b>&x"); }, [this] { hands->Type(AgeField, "-1a2.5"); },
        [this] { hands->Type(PlainList, "a"); }, [this] { hands->Click(LoudBox); },
        [&] {
            EXPECT_EQ(GetDlgItem(dialog, NameField)->text, "<b>&x");
            EXPECT_EQ(GetDlgItem(dialog, AgeField)->text, "125");
            EXPECT_EQ(GetDlgItem(dialog, PlainList)->text, "a");
            EXPECT_EQ(ask(PlainList, CB_GETCURSEL), CB_ERR);
            EXPECT_EQ(ask(LoudBox, BM_GETCHECK), LRESULT { BST_CHECKED });
        } });
}

} // namespace
