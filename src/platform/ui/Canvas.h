#pragma once

#include "platform/ui/Control.h"

#include <functional>

class Picture;

// An area that shows one picture, stretched to its size, and answers to the mouse. It takes no focus. Assistive tools
// know one that answers to a press as a button, and press it as the mouse does; another one that has a description is a
// picture to them. A tool tip shows what a button, or a picture that has a description itself, is called.
class Canvas : public Control {
public:
    Canvas();

    // True asks for the MouseUp that ends the press. Positions are in the canvas's own coordinates.
    std::function<bool(int x, int y)> MouseDown;
    std::function<void(int x, int y)> MouseUp;
    std::function<void()> MouseExit;

    // Null shows nothing: what lies below the canvas.
    [[nodiscard]] const Picture* Backdrop() const;
    void SetBackdrop(const Picture* picture);

private:
    class Surface;
    Surface* surface_;
};
