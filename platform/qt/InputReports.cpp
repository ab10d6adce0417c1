#include "platform/qt/InputReports.h"

namespace platform {

void InputReports::Forget(const Window& record)
{
    std::erase_if(waiting, [&record](const Entry& entry) { return entry.target == &record; });
    for (const auto& child : record.children)
        Forget(*child);
}

bool InputReports::TellNext()
{
    bool told = false;
    while (!told && !waiting.empty()) {
        const Entry next = std::move(waiting.front());
        waiting.pop_front();
        told = widgets.WidgetOf(next.target) && next.report();
    }
    return told;
}

} // namespace platform
