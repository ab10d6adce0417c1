#pragma once

// Composes the screen, paints the status panel, copies the frame to the window and outlines the selected objects in
// red. The outlines and the panel never enter the frame.
void PresentFrame();
