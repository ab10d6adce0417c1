#include "platform/Desktop.h"
#include "platform/User.h"
#include "platform/qt/QtDesktop.h"
#include "resources/ProgramResources.h"
#include "shell/MainLoop.h"
#include "shell/ShellContext.h"

int main(int argc, char** argv)
{
    platform::QtDesktop desktop(argc, argv);
    platform::InstallDesktop(&desktop);
    int exitStatus = 0;
    {
        ShellContext shell;
        exitStatus = RunEditor(&ProgramResources(), SW_SHOWNORMAL);
    }
    platform::InstallDesktop(nullptr);
    return exitStatus;
}
