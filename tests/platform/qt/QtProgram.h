#pragma once

#include "platform/Desktop.h"
#include "platform/User.h"

#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

using Log = std::vector<std::string>;
using Steps = std::vector<std::function<void()>>;

enum PersonId { NameField = 1001, AgeField, TownField, ColourList, LoudBox, DoneButton };
extern const platform::Module personResources; // the dialog "PERSON" and the menu "COLOURS" (11 and 12)

// A small window program on the real desktop, which draws into memory here; it notes what reaches its window and its
// dialog. The designer's hands are the toolkit's events.
class QtProgram : public testing::Test {
protected:
    QtProgram();
    ~QtProgram() override;

    // Lets the program run until nothing is left to do, and gives what was noted since the last look.
    Log TakeLog();
    // Queues what the designer does while something modal is open; each step finds the one before dealt with.
    void WhileModal(const Steps& steps);
    // Runs the dialog "PERSON" through the steps and closes it with its button.
    void WorkInDialog(Steps steps);

    // A control's text as the program has it, in UTF-8.
    std::string TextOf(int id) const;
    // The toolkit's side of the window and of what is open over it.
    QWidget& Canvas() const;
    template <typename Widget> Widget& InDialog(int position = 0) const
    {
        return *QApplication::activeModalWidget()->findChildren<Widget*>().at(position);
    }

    HWND window = nullptr; // 200 by 100 pixels with the button 7 in its top-left corner
    HWND dialog = nullptr; // while it is open
    std::function<void(UINT)> onMessage; // of the window, after it was noted

private:
    static LRESULT WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static INT_PTR DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

    static inline QtProgram* running = nullptr;
    Log log;
};
