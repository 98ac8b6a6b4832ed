#pragma once

#include <QSize>
#include <QString>

#include <memory>

class QPainter;
class QRect;

// One of the program's pictures. There is one shared object for each name, so pictures are compared by address.
//
// A picture is vector art and is drawn crisp at any size and screen scale. It is read when it is first shown in
// a size, and each rendering is kept for the run.
class Picture {
public:
    ~Picture();
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    [[nodiscard]] QString Name() const;
    // The picture's own size in logical pixels.
    [[nodiscard]] QSize Size() const;

    // What the picture shows, for a screen reader and in a tool tip; empty at first.
    [[nodiscard]] QString Description() const;
    void SetDescription(const QString& description);

    // Draws the mask into this picture's transparency: black leaves the picture opaque, white makes it transparent,
    // grey is between. The mask is stretched to the picture's size.
    void SetMask(const Picture& mask);

    // For the layer itself: draws the picture stretched to the rectangle.
    void Draw(QPainter& painter, const QRect& rect) const;

private:
    friend Picture* NamedPicture(const QString& name);
    struct State;

    explicit Picture(std::unique_ptr<State> state);

    std::unique_ptr<State> state_;
};

// The picture of that name from the program's resources (":/pictures/<name>.svg"). It lives for the whole run. A name
// that no resource has gives null.
[[nodiscard]] Picture* NamedPicture(const QString& name);
