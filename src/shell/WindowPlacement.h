#pragma once

class Window;

// Puts a secondary window in the middle of the main window, 100 pixels below its top.
void PlaceUnderMainWindow(Window& window);
