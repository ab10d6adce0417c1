#include "shell/FramePresentation.h"

#include "platform/Gdi.h"
#include "shell/ObjectLookup.h"

namespace {

// 555 pixels, top row first. The resolution, in pixels per metre, means nothing for a window; it is handed over all the
// same.
const BITMAPINFO frameFormat { .bmiHeader {
    .biWidth = ScreenWidth,
    .biHeight = -ScreenHeight,
    .biBitCount = 16,
    .biXPelsPerMeter = 1834,
    .biYPelsPerMeter = 1834,
} };

void CopyFrame(HDC context, const uint16_t* frame)
{
    SetDIBitsToDevice(
        context, 0, 0, ScreenWidth, ScreenHeight, 0, 0, 0, ScreenHeight, frame, &frameFormat, DIB_RGB_COLORS);
}

void OutlineSelection(HDC context, HBRUSH brush)
{
    ForEachSelected([&](size_t, const ScreenObject& object) {
        const vec topLeft = object.GetPos();
        const vec bottomRight = topLeft + object.GetView();
        RECT outline;
        SetRect(&outline, topLeft.x, topLeft.y, bottomRight.x, bottomRight.y);
        FrameRect(context, &outline, brush);
    });
}

} // namespace

void PresentFrame()
{
    ShellContext& shell = Shell();
    shell.lastFrame = shell.document.Render();
    shell.editing.DrawStatusPanel();

    HDC context = GetDC(shell.mainWindow);
    CopyFrame(context, shell.lastFrame);
    HBRUSH red = CreateSolidBrush(RGB(255, 0, 0));
    OutlineSelection(context, red);
    ReleaseDC(shell.mainWindow, context);
    DeleteObject(red);
}
