#include "UiFixture.h"

#include <QLabel>

using StaticTextTest = UiTest;

TEST_F(StaticTextTest, AWrappedTextThatFitsIsDrawnWhole) {
    const auto drawn = [this](int textSize, int height) {
        StaticText text;
        text.Place(*window, nullptr, {"Text", "", {0, 0, 120, height}});
        text.SetLook({.textSize = textSize, .multiLine = true});
        text.SetText(QStringLiteral("Typing gypsy\njpg quay"));
        return Find<QLabel>(text)->grab(QRect(0, 0, 120, 36)).toImage();
    };
    for (const int textSize : {9, 10, 11, 12, 13}) {
        EXPECT_EQ(drawn(textSize, 36), drawn(textSize, 200)) << textSize;
    }
}
