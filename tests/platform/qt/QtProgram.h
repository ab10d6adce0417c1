#pragma once

#include "platform/CodePage.h"
#include "platform/Window.h"
#include "tests/platform/windows/WindowProgram.h"

#include <QApplication>
#include <QTest>
#include <QWidget>

using Steps = std::vector<std::function<void()>>;

// Queues what the designer does while something modal is open; each step finds the one before dealt with.
void WhileModal(const Steps& steps);
// Closes the windows of a test, which must have made all its steps.
void EndProgram();
// The toolkit's side of the window.
QWidget& Canvas();

// The program on the real desktop, which draws into memory here. The designer's hands are the toolkit's events.
class QtProgram : public WindowProgram {
protected:
    QtProgram();
    ~QtProgram() override { EndProgram(); }

    // Runs the dialog "SETTINGS", with a name and three colours in the plain list, through the steps and closes it with
    // its button.
    void WorkInDialog(Steps steps);
    // A control's text as the program has it, in UTF-8.
    std::string TextOf(int id) const { return platform::Utf8FromCodePage(GetDlgItem(dialog, id)->text); }
    template <typename Widget> Widget& InDialog(int position = 0) const
    {
        return *QApplication::activeModalWidget()->findChildren<Widget*>().at(position);
    }

    HWND window = nullptr;
    HWND dialog = nullptr; // while it is open
};
