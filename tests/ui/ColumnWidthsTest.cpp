#include "platform/ui/ColumnWidths.h"

#include <gtest/gtest.h>

TEST(ColumnWidths, PixelsSharesAndRest) {
    const std::tuple<const char*, int, int, std::vector<int>> cases[] = {
        {"65,180,*,90", 4, 600, {65, 180, 265, 90}},
        {"65,180,*,90", 4, 200, {65, 180, 0, 90}}, // too narrow: the rest is never negative
        {"20%,*,22%", 3, 225, {45, 131, 49}},
        {"5%,45%,15%,10%,25%", 6, 470, {23, 211, 70, 47, 117, 2}}, // the unnamed column takes the rest
        {"*,*,*", 3, 100, {33, 33, 34}},                           // no pixel is lost
        {"40,*", 3, 100, {40, 60, 0}},                             // with a star, an unnamed column gets nothing
        {"wide,-5,*", 3, 100, {0, 0, 100}},
    };
    for (const auto& [text, columns, total, widths] : cases) {
        EXPECT_EQ(ColumnWidths(text, columns, total), widths) << text << " on " << total;
    }
}
