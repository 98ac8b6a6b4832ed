#pragma once

#include "platform/ui/Color.h"
#include "platform/ui/Control.h"

// How a filled shape looks. A border of width 0 is not drawn; an arc of 0 gives square corners.
struct ShapeLook {
    Color fill = Color{0xFFFFFF};
    Color border = Color{0x000000};
    int borderWidth = 0;
    int arc = 0;
};

// A filled shape that other controls lie in. It takes no focus and answers to nothing.
class Shape : public Control {
public:
    void SetLook(const ShapeLook& look);

protected:
    enum class Outline { Box, Ellipse };
    explicit Shape(Outline outline = Outline::Box);

private:
    class Surface;
    Surface* surface_;
};

class Rectangle : public Shape {};

class RoundRectangle : public Shape {};

class Oval : public Shape {
public:
    Oval() : Shape(Outline::Ellipse) {}
};

// A thin line between two areas.
class Separator : public Shape {
public:
    Separator();
};
