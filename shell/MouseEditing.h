#pragma once

#include "objects/vec.h"
#include "platform/Types.h"

// A mouse message of the main window, taken apart.
struct MouseMessage {
    vec point { 0, 0 }; // client coordinates, negative left of or above the window
    bool leftHeld = false;
    bool shift = false;
    uint32_t wParam = 0; // as it came, for the objects
    uint32_t lParam = 0;

    static MouseMessage From(WPARAM wParam, LPARAM lParam);
};

// Selecting, dragging, the rubber band and the context menus. Each also hands its message on to the objects.
void OnLeftPress(const MouseMessage& mouse);
void OnMouseMove(const MouseMessage& mouse);
void OnLeftRelease(const MouseMessage& mouse);
void OnRightPress(const MouseMessage& mouse);
