// draw_icon DRAWING SIZE ICON: draws an SVG as a square PNG of SIZE pixels.
#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>

#include <cstdio>
#include <cstdlib>

int main(int argumentCount, char** arguments) {
    if (argumentCount != 4) {
        std::fputs("Usage: draw_icon DRAWING SIZE ICON\n", stderr);
        return EXIT_FAILURE;
    }
    const QString drawing = QString::fromLocal8Bit(arguments[1]);
    const int size = QString::fromLocal8Bit(arguments[2]).toInt();
    const QString icon = QString::fromLocal8Bit(arguments[3]);

    QSvgRenderer renderer(drawing);
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    if (!renderer.isValid() || !painter.isActive()) {
        std::fprintf(stderr, "%s is no drawing, or %s is no size\n", arguments[1], arguments[2]);
        return EXIT_FAILURE;
    }
    renderer.render(&painter);
    painter.end();
    if (!image.save(icon, "PNG")) {
        std::fprintf(stderr, "Could not write %s\n", arguments[3]);
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
