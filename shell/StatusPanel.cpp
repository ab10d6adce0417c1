#include "platform/Gdi.h"
#include "shell/EditorState.h"
#include "shell/WindowLayout.h"

#include <cstdio>
#include <cstring>

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
