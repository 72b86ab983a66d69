// Where windows go on the screens, and how large a point is there.
#pragma once

#include <windows.h>

namespace duskmarch {

// Device pixels of one of the game's, both ways, where the window is.
double deviceratio(HWND window);
// So many of the game's pixels in the device's, where the window is.
int devicepixels(HWND window, int pixels);
// The part that is free of the screen that the window is on.
RECT freearea(HWND window);
// `area`, made smaller and moved as need be to lie in the free part of the screen that it is most
// on.
RECT onscreen(RECT area);

}  // namespace duskmarch
