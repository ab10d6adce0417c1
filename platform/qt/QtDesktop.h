#pragma once

#include "platform/Desktop.h"

#include <memory>
#include <string>

namespace platform {

// The designer's own desktop: real windows, dialogs, menus and boxes. There is one at most, and it is made inside
// main: it brings the toolkit's application object along.
class QtDesktop : public Desktop {
public:
    // The name is all that the toolkit learns of the command line: it has options of its own. Where no display can be
    // reached this says so on stderr and ends the process with status 0; the toolkit would abort it.
    explicit QtDesktop(std::string programName);
    ~QtDesktop() override;

    // Shows what was drawn to the windows first, so that a frame is seen before the pause and not after it.
    void Sleep(uint32_t milliseconds) override;

    void WindowOpened(Window& window) override;
    void WindowChanged(Window& window) override;
    void WindowClosed(Window& window) override;
    void SurfaceDrawn(Window& window) override;
    void FocusChanged(Window& window) override;
    // (0, 0) until the window manager has told the frame.
    SIZE FrameSize(const Window& window) override;
    // In device-independent pixels, as all coordinates here.
    SIZE DisplaySize() override;
    // Shift and Ctrl as they were held when the latest reported input was made.
    bool IsKeyDown(int virtualKey) override;
    std::optional<POINT> PointerIn(const Window& window) override;

    // Reports one piece of input at most, so that the program has reacted to it before the next one is judged.
    bool Pump(bool wait) override;

    int ShowMessageBox(Window* owner, std::string_view text, std::string_view caption) override;
    uint32_t ShowMenu(Window& owner, const Menu& menu, POINT at) override;
    std::optional<std::string> ChooseFile(const FileRequest& request) override;

private:
    struct Parts;
    std::unique_ptr<Parts> parts;
};

} // namespace platform
