#include "platform/ProgramEnd.h"

#include "platform/windows/Menus.h"
#include "platform/windows/MessageQueue.h"
#include "platform/windows/WindowClasses.h"
#include "platform/windows/WindowDestruction.h"
#include "platform/windows/WindowTable.h"

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
