#pragma once

namespace platform {

// Forgets every loaded menu.
void ForgetMenus();

} // namespace platform
