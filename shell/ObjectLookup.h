#pragma once

#include "objects/ScreenObject.h"
#include "objects/vec.h"
#include "shell/ShellContext.h"

#include <cstddef>
#include <cstdint>

// The topmost object at the point (client coordinates) and its index; null and -1 when there is none. The document
// keeps owning it.
ScreenObject* FindObject(vec point, int32_t& index);
// The object on which the context menus and the property dialogs act, or null.
ScreenObject* FindContextObject();

// Calls act(position in the selection, object) for every selected object, in the order of the selection. Indexes that
// name no object are skipped.
template <class Act> void ForEachSelected(Act act)
{
    const EditorState& editing = Shell().editing;
    for (size_t i = 0; i < editing.GetSelectionCount(); ++i) {
        ScreenObject* object = nullptr;
        if (Shell().document.GetObject(editing.GetSelectedIndex(i), object))
            act(i, *object);
    }
}
