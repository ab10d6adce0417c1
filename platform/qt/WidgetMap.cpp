#include "platform/qt/WidgetMap.h"

namespace platform {

void WidgetMap::Bind(const Window& record, QWidget& widget)
{
    widgets[&record] = &widget;
}

void WidgetMap::Release(const Window& record)
{
    widgets.erase(&record);
    for (const auto& child : record.children)
        Release(*child);
}

QWidget* WidgetMap::WidgetOf(const Window* record) const
{
    const auto found = widgets.find(record);
    return found == widgets.end() ? nullptr : found->second.data();
}

void WidgetMap::DeleteAll()
{
    const auto bound = std::move(widgets);
    widgets.clear();
    for (const auto& entry : bound) {
        if (entry.second && entry.second->isWindow())
            delete entry.second.data();
    }
}

} // namespace platform
