#include "platform/ui/TextScale.h"

#include <gtest/gtest.h>

TEST(TextScale, FollowsTheTextAsFarAsTheScreenHasRoom) {
    struct Case {
        double textPixels;
        QSize room;
        double scale;
    };
    const Case cases[] = {
        {12, {1920, 1080}, 1},      // what desktops come with
        {14.67, {1920, 1080}, 1},   // 11 points
        {21.33, {1920, 1080}, 1.5}, // 16 points
        {32, {1920, 1080}, 1.5},    // the screen is not high enough for more
        {21.33, {1366, 740}, 1},    // a small screen
        {21.33, {640, 480}, 1},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(TextScale(row.textPixels, row.room), row.scale) << row.textPixels << " on " << row.room.height();
    }
}
