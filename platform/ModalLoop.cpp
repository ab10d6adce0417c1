#include "platform/ModalLoop.h"

#include "platform/Desktop.h"
#include "platform/InputPump.h"
#include "platform/MessageQueue.h"
#include "platform/WindowErasing.h"

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
