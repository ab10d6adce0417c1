#pragma once

#include "platform/scripted/ScriptedDesktop.h"
#include "tests/platform/windows/WindowProgram.h"

// The program on a scripted desktop of its own.
class ScriptedProgram : public WindowProgram {
protected:
    // What was noted, once the input queued on the desktop is used up.
    Log Played()
    {
        desktop.PlayInput();
        return TakeLog();
    }

    platform::ScriptedDesktop desktop;
};
