#include "platform/ui/Graphics.h"

#include "platform/ui/Fonts.h"

#include <QPainter>

Graphics::Graphics(QPainter& painter, int width, int height) : painter_(painter), width_(width), height_(height) {
    foreColor_ = Color{painter.pen().color().rgb() & 0xFFFFFFU};
}

int Graphics::Width() const {
    return width_;
}

int Graphics::Height() const {
    return height_;
}

void Graphics::SetForeColor(Color color) {
    foreColor_ = color;
    painter_.setPen(QColor(QRgb(color.rgb)));
}

void Graphics::SetBold(bool bold) {
    QFont font = painter_.font();
    font.setBold(bold);
    painter_.setFont(font);
}

void Graphics::SetTextFont(const QString& family) {
    painter_.setFont(fonts::WithFamily(painter_.font(), family));
}

void Graphics::SetTextSize(int pixels) {
    painter_.setFont(fonts::WithSize(painter_.font(), pixels));
}

void Graphics::FillRect(int x, int y, int width, int height) {
    painter_.fillRect(x, y, width, height, QColor(QRgb(foreColor_.rgb)));
}

void Graphics::FillRoundRect(int x, int y, int width, int height, int arcWidth, int arcHeight) {
    painter_.save();
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(QColor(QRgb(foreColor_.rgb)));
    painter_.drawRoundedRect(QRectF(x, y, width, height), arcWidth / 2.0, arcHeight / 2.0);
    painter_.restore();
}
