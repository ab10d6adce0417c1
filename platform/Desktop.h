#pragma once

#include "platform/Types.h"
#include "platform/Window.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

// A question to the user for a file. Texts are UTF-8, paths native.
struct FileRequest {
    Window* owner = nullptr;
    std::string label; // of the filter
    std::string pattern; // "*.bmp"
    std::string folder; // an existing folder
    bool mustExist = false;
};

// What only a real desktop can do. One is installed before the first window is made and stays for the whole run; the
// window-system calls in platform/ are carried out over it. It gets the program's own records and shows them; what the
// user does comes back through platform/DesktopEvents.h, from inside Pump.
class Desktop {
public:
    Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    virtual ~Desktop() = default;

    // The clock and the developer log. These use the machine's own clock and stderr (as UTF-8).
    virtual uint32_t TickCount();
    virtual void Sleep(uint32_t milliseconds);
    virtual void DebugOutput(std::string_view text); // code page 950

    // Windows. Opened with their children, hidden at first unless `visible`; changed whenever a field of the record
    // that can be seen (place, visible, text, items, selection, checked) has changed; closed before the record goes.
    virtual void WindowOpened(Window& window) = 0;
    virtual void WindowChanged(Window& window) = 0;
    virtual void WindowClosed(Window& window) = 0;
    // The client surface of a top-level window was drawn to.
    virtual void SurfaceDrawn(Window& window) = 0;
    virtual void FocusChanged(Window& window) = 0;
    // How much larger the outer rectangle of a top-level window or dialog is than its client area. The frame below is
    // taken to be as wide as the one at each side; the rest of the height is above.
    virtual SIZE FrameSize(const Window& window) = 0;
    virtual SIZE DisplaySize() = 0;
    virtual bool IsKeyDown(int virtualKey) = 0;
    // Where in the client area of a top-level window the pointer lies; nothing when it lies elsewhere, on something
    // over the window for example, or a mouse button is held.
    virtual std::optional<POINT> PointerIn(const Window& window) = 0;

    // Lets one piece of the user's input in; with `wait`, sleeps until there may be some. False when nothing was left
    // to let in. Never called from inside itself except by a modal loop.
    virtual bool Pump(bool wait) = 0;

    // Modal questions; they return when the user has answered. Texts are code page 950.
    virtual int ShowMessageBox(Window* owner, std::string_view text, std::string_view caption) = 0;
    // The id of the chosen item, 0 when none was. `at` is a point of the display.
    virtual uint32_t ShowMenu(Window& owner, const Menu& menu, POINT at) = 0;
    // The native path of the file, nothing when cancelled.
    virtual std::optional<std::string> ChooseFile(const FileRequest& request) = 0;
};

// Installs the desktop for the calls in platform/ (null: none). The caller keeps owning it and every window must be
// gone before another one is installed.
void InstallDesktop(Desktop* desktop);
// The installed one, or null. Without one, the clock and the developer log still work.
Desktop* InstalledDesktop();

} // namespace platform
