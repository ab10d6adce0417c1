#pragma once

#include "platform/Types.h"

// Runs the commands that put new objects on the screen, and New; other ids do nothing.
void RunObjectCommand(WORD id);
