#include "shell/ObjectLookup.h"

ScreenObject* FindObject(vec point, int32_t& index)
{
    ScreenObject* object = nullptr;
    if (Shell().document.FindObjectAt(point, index))
        Shell().document.GetObject(index, object);
    return object;
}

ScreenObject* FindContextObject()
{
    int32_t index = -1;
    return FindObject(Shell().editing.GetContextPoint(), index);
}
