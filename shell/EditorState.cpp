#include "shell/EditorState.h"

#include "platform/Gdi.h"
#include "shell/MainWindow.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

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

bool EditorState::DrawStatusPanel() const
{
    if (!window || panelOrigin == 0)
        return false;

    HDC context = GetDC(window);
    RECT panel;
    SetRect(&panel, panelOrigin.x, panelOrigin.y, ClientWidth, ClientHeight);
    FillRect(context, &panel, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));

    int32_t y = panelOrigin.y;
    const auto drawLine = [&](const char* format, auto... numbers) {
        char line[50] = {};
        std::snprintf(line, sizeof line, format, numbers...);
        TextOutA(context, panelOrigin.x, y, line, static_cast<int>(std::strlen(line)));
        y += lineHeight;
    };
    drawLine("Mouse Pos : x = %d, y = %d", pointer.x, pointer.y);
    drawLine("Total Layer Number = %d", objectCount);
    if (currentObject) {
        drawLine("Object Layer = %d", currentObject->GetLayer());
        drawLine("Object Position = ( %d, %d )", currentObject->GetPos().x, currentObject->GetPos().y);
        drawLine("Object PicSize = ( %d, %d )", currentObject->GetView().x, currentObject->GetView().y);
    }
    ReleaseDC(window, context);
    return true;
}

void EditorState::Reset()
{
    pointer = vec(0, 0);
    objectCount = 0;
    pressPoint = vec(0, 0);
    contextPoint = vec(0, 0);
    currentObject = nullptr;
    fileName.clear();
    selection.clear();
}
