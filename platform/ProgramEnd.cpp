#include "platform/ProgramEnd.h"

#include "platform/Menu.h"
#include "platform/MessageQueue.h"
#include "platform/WindowClasses.h"
#include "platform/WindowDestruction.h"
#include "platform/WindowTable.h"

namespace platform {

void DiscardWindows()
{
    for (auto windows = RootWindows(); !windows.empty(); windows = RootWindows())
        ForgetWindow(*windows.back());
    ClearMessages();
    ForgetClasses();
    ForgetMenus();
}

} // namespace platform
