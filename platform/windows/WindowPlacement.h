#pragma once

#include "platform/Window.h"

// Where windows lie. No coordinate ever leaves the range of its type: sums stop at its ends.
namespace platform {

int AddCoordinates(int one, int other);
// A rectangle from its corner and its extent.
RECT PlaceAt(int x, int y, int width, int height);

// Puts the client area of a top-level window or dialog there; a new extent gives a top-level window a new white
// surface.
void PlaceClient(Window& window, int x, int y, int width, int height);
// The same for the outer rectangle, frame included.
void PlaceOuter(Window& window, int x, int y, int width, int height);
// Puts a dialog in the middle of its owner, or of the display when it has none, but on the display as a whole where it
// fits.
void PlaceDialog(Window& dialog, int width, int height);

} // namespace platform
