#include "platform/ModalLoop.h"

#include "platform/Desktop.h"
#include "platform/windows/InputPump.h"
#include "platform/windows/MessageQueue.h"
#include "platform/windows/WindowErasing.h"

namespace platform {

void RunModalLoop(const std::function<bool()>& done)
{
    const InnerPump pump;
    while (InstalledDesktop() && !done()) {
        DeliverErases();
        if (const auto message = TakeMessage())
            DispatchMessageA(&*message);
        else
            LetInputIn(true);
    }
}

} // namespace platform
