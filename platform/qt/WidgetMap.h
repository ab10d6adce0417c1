#pragma once

#include "platform/Window.h"

#include <QPointer>
#include <QWidget>

#include <unordered_map>

namespace platform {

// Which widget shows which record. A widget may live on for a moment after its record has gone; it then shows nothing.
class WidgetMap {
public:
    void Bind(const Window& record, QWidget& widget);
    // Forgets the record and its children.
    void Release(const Window& record);
    // Null when nothing shows the record.
    QWidget* WidgetOf(const Window* record) const;
    bool Shows(const QWidget& widget, const Window& record) const { return WidgetOf(&record) == &widget; }
    // Deletes every top-level widget that is still bound.
    void DeleteAll();

private:
    std::unordered_map<const Window*, QPointer<QWidget>> widgets;
};

} // namespace platform
