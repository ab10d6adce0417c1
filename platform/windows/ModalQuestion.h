#pragma once

#include "platform/Window.h"

namespace platform {

// While one is alive, a modal question is open: the window that asks takes no input. A capture ends when it begins.
// When it ends, the window will hear where the pointer then lies.
class ModalQuestion {
public:
    explicit ModalQuestion(Window* askingWindow);
    ModalQuestion(const ModalQuestion&) = delete;
    ModalQuestion& operator=(const ModalQuestion&) = delete;
    ~ModalQuestion();

private:
    Window* owner; // null when nothing is to be given back
};

} // namespace platform
