#pragma once

#include "platform/qt/WidgetMap.h"

#include <deque>
#include <functional>

namespace platform {

// What the user did and the program has not been told yet, in the order in which it was done. The toolkit's handlers
// only add to it; the program is told between two of the toolkit's events, one report at a time, so a report may open
// modal loops and close windows, and one that comes too late for a window that is blocked by then is dropped by it.
class InputReports {
public:
    explicit InputReports(const WidgetMap& widgetMap)
        : widgets(widgetMap)
    {
    }

    // Tells the program; false when there turned out to be nothing to tell.
    using Report = std::function<bool()>;

    void Add(const Window& target, Report report) { waiting.push_back({ &target, std::move(report) }); }
    // Drops what concerns the window or a child of it.
    void Forget(const Window& record);
    bool Empty() const { return waiting.empty(); }
    // Tells the first report that has something to tell; false when there was none.
    bool TellNext();

private:
    struct Entry {
        const Window* target;
        Report report;
    };

    const WidgetMap& widgets;
    std::deque<Entry> waiting;
};

} // namespace platform
