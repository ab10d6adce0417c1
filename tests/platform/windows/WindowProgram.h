#pragma once

#include "platform/Resources.h"
#include "platform/User.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

using Log = std::vector<std::string>;

// A small window program on the installed desktop; it notes what reaches its window and its dialogs.
class WindowProgram : public testing::Test {
protected:
    WindowProgram();
    ~WindowProgram() override { running = nullptr; }

    // A visible window with a client area of 200 by 100 pixels at (50, 60) and a button 7 in its corner; its opening
    // is not noted.
    HWND OpenWindow(UINT classStyle = 0);
    // What was noted since the last look, WM_WINDOWPOSCHANGED as "placed", a press at (50, 60) as "press 50 60 1".
    Log TakeLog();
    // The same once all input has been taken (a quit request stays pending), without placing and erasing, which every
    // desktop does in its own time.
    Log Settled();
    INT_PTR RunDialog(const char* name, HWND owner);

    static LRESULT WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static INT_PTR DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

    std::function<LRESULT(HWND, UINT)> onWindowMessage; // a non-zero answer replaces the default handling
    std::function<void(HWND, UINT, WPARAM)> onDialogMessage;

private:
    void Note(const std::string& receiver, UINT message, WPARAM wParam, LPARAM lParam);

    static inline WindowProgram* running = nullptr;
    Log log;
};

// The program's resources: the dialogs "SETTINGS" and "BARE" and the menu "COLOURS" (11 "紅", 12 "綠").
extern const platform::Module testResources;

enum SettingsId { NameField = 1, AgeField, SizeField, SortedList, PlainList, LoudBox, DoneButton };
