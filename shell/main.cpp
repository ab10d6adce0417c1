#include "platform/Desktop.h"
#include "platform/User.h"
#include "platform/qt/QtDesktop.h"
#include "resources/ProgramResources.h"
#include "shell/MainLoop.h"
#include "shell/ShellContext.h"

int main(int argc, char** argv)
{
    // Nothing but the program's name is read.
    platform::QtDesktop desktop(argc > 0 ? argv[0] : "tobrik");
    platform::InstallDesktop(&desktop);
    int exitStatus = 0;
    {
        ShellContext shell;
        exitStatus = RunEditor(&ProgramResources(), SW_SHOWNORMAL);
    }
    platform::InstallDesktop(nullptr);
    return exitStatus;
}
