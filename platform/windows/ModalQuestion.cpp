#include "platform/windows/ModalQuestion.h"

#include "platform/User.h"
#include "platform/windows/WindowTable.h"

namespace platform {

ModalQuestion::ModalQuestion(Window* askingWindow)
    : owner(IsWindow(askingWindow) && RootOf(*askingWindow).enabled ? &RootOf(*askingWindow) : nullptr)
{
    ReleaseCapture();
    if (owner)
        owner->enabled = false;
}

ModalQuestion::~ModalQuestion()
{
    if (!IsWindow(owner))
        return;
    owner->enabled = true;
    owner->pointerPending = true;
}

} // namespace platform
