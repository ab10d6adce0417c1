#pragma once

namespace platform {

// Forgets every window, class, menu and queued message, as the end of a process does: no messages are sent, but the
// desktop is told of each window that it has open. A desktop calls this before it goes.
void DiscardWindows();

} // namespace platform
