#pragma once

#include "platform/User.h"

namespace platform {

// The registered class of the name, or null; names are matched without regard to case.
const WNDCLASSEXA* FindWindowClass(const char* name);
void ForgetClasses();

} // namespace platform
