#pragma once

#include "platform/Resources.h"

// The program's sign for title bars and task lists, 32 and 16 pixels square.
extern const platform::Icon largeIcon;
extern const platform::Icon smallIcon;
