#include "objects/ScreenObject.h"

void ScreenObject::SetBoundaryCheck(bool check)
{
    boundaryCheck = check;
    view = size;
}

void ScreenObject::ResetFields()
{
    kind = KindNone;
    pos = src = size = view = { 0, 0 };
    layer = 0;
    boundaryCheck = false;
    alpha = 255;
    effect = EffectNone;
    effectRunning = false;
}
