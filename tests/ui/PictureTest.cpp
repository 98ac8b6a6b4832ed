#include "platform/ui/Picture.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace {

QImage Drawn(const Picture& picture, int ratio) {
    QImage image(picture.Size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    picture.Draw(painter, QRect(QPoint(0, 0), picture.Size()));
    return image;
}

} // namespace

TEST(Picture, MaskMakesWhiteTransparentAndLeavesBlackOpaqueAtEachScale) {
    Picture* picture = NamedPicture("SearchBoxMask"); // white corners around a black middle, which masks itself here
    EXPECT_EQ(Drawn(*picture, 1).pixel(0, 0), 0xFFFFFFFF);
    picture->SetMask(*picture);
    for (const int ratio : {1, 2}) {
        const QImage masked = Drawn(*picture, ratio);
        EXPECT_EQ(qAlpha(masked.pixel(0, 0)), 0) << ratio;
        EXPECT_EQ(masked.pixel(QPoint(91, 13) * ratio), 0xFF000000) << ratio;
    }
}
