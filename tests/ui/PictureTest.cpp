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

TEST(Picture, OneObjectForEachNameAndNullForAnUnknownOne) {
    EXPECT_NE(NamedPicture("Rating3"), nullptr);
    EXPECT_EQ(NamedPicture("Rating3"), NamedPicture("Rating3"));
    EXPECT_EQ(NamedPicture("rating3"), nullptr);
}

TEST(Picture, MaskMakesWhiteTransparentAndLeavesBlackOpaqueAtEachScale) {
    Picture* picture = NamedPicture("SearchBoxMask"); // white corners around a black middle, which masks itself here
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(Drawn(*picture, 1).pixel(0, 0), 0xFFFFFFFF);
    picture->SetMask(*picture);
    for (const int ratio : {1, 2}) {
        const QImage masked = Drawn(*picture, ratio);
        EXPECT_EQ(qAlpha(masked.pixel(0, 0)), 0) << ratio;
        EXPECT_EQ(masked.pixel(QPoint(91, 13) * ratio), 0xFF000000) << ratio;
    }
}
