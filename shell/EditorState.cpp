#include "shell/EditorState.h"

#include <algorithm>

bool EditorState::IsSelected(int32_t index) const
{
    return std::any_of(selection.begin(), selection.end(), [&](const auto& entry) { return entry.index == index; });
}

void EditorState::SelectOnly(int32_t index, vec grab)
{
    ClearSelection();
    AddToSelection(index, grab);
}

void EditorState::RemoveFromSelection(int32_t index)
{
    const auto entry
        = std::find_if(selection.begin(), selection.end(), [&](const auto& each) { return each.index == index; });
    if (entry != selection.end())
        selection.erase(entry);
}

void EditorState::Reset()
{
    pointer = vec(0, 0);
    objectCount = 0;
    pressPoint = vec(0, 0); // not the (-1, -1) of the start: a held button may stretch a rubber band from here
    contextPoint = vec(0, 0);
    currentObject = nullptr;
    fileName.clear();
    selection.clear();
}
