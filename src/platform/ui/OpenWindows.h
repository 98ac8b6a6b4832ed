#pragma once

#include <memory>
#include <typeindex>

class QWidget;
class Window;

// For the layer itself: the implicit windows that are open, at most one of each class.
namespace OpenWindows {

[[nodiscard]] Window* Find(std::type_index type);
Window& Add(std::type_index type, std::unique_ptr<Window> window);

// Shows the window with the next turn of the event loop, when the handler that made it has placed and filled it.
void ShowSoon(Window& window);

// The window was closed. It is destroyed when the handlers that run have returned, because the one that closed it may
// be its own. The run ends with the last document window; floating windows do not go on without one.
void Release(Window& window);

// The window in front, or null.
[[nodiscard]] Window* Frontmost();
// The window was asked to the front. The window system brings it there a little later.
void ComesToFront(Window& window);
// The widget of the window that a message belongs to: the one that is coming to the front, or is there; or null.
[[nodiscard]] QWidget* MessageParent();
// One of the open windows, of any kind or of one, or null when there is none.
[[nodiscard]] Window* Any();
[[nodiscard]] Window* Document();
[[nodiscard]] Window* Floating();

void DestroyAll();

} // namespace OpenWindows
