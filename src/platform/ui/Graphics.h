#pragma once

#include "platform/ui/Color.h"

#include <QString>

class QPainter;

// What a paint event draws on: one cell of a list, with its own origin at the cell's top left corner. It is valid
// only during the event. The text settings say how the list draws the cell's text after the event returned.
class Graphics {
public:
    // For the layer itself: the painter's origin must be the cell's corner.
    Graphics(QPainter& painter, int width, int height);

    [[nodiscard]] int Width() const;
    [[nodiscard]] int Height() const;

    void SetForeColor(Color color);
    void SetBold(bool bold);
    // "System" is the platform's own font.
    void SetTextFont(const QString& family);
    // In logical pixels; 0 is the platform's default.
    void SetTextSize(int pixels);

    void FillRect(int x, int y, int width, int height);
    // The arcs are the width and height of the ellipse that rounds each corner.
    void FillRoundRect(int x, int y, int width, int height, int arcWidth, int arcHeight);

private:
    QPainter& painter_;
    int width_;
    int height_;
    Color foreColor_;
};
