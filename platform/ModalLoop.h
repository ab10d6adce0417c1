#pragma once

#include <functional>

namespace platform {

// Runs an inner message loop until `done` answers true: input is let in and messages are dispatched. A quit request
// waits for the loop outside.
void RunModalLoop(const std::function<bool()>& done);

} // namespace platform
