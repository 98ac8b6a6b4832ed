#include "platform/base/Text.h"

#include <gtest/gtest.h>

#include <climits>

TEST(Text, InStrCountsFromOneAndIgnoresCase) {
    EXPECT_EQ(InStr("V01V05V04", "v04"), 7);
    EXPECT_EQ(InStr("Gin", ""), 0);
    EXPECT_EQ(InStr(2, "aba", "A"), 3);
    EXPECT_EQ(InStr(-5, "aba", "A"), 1);
    EXPECT_EQ(InStr(99, "aba", "A"), 0);
}

TEST(Text, PartsTakeAnyNumber) {
    const std::pair<int, const char*> cases[] = {{INT_MIN, ""}, {0, ""}, {2, "Pu"}, {6, "Punch"}, {INT_MAX, "Punch"}};
    for (const auto& [number, left] : cases) {
        EXPECT_EQ(Left("Punch", number), QString(left)) << number;
    }
    EXPECT_EQ(Right("Punch", -1), QString());
    EXPECT_EQ(Mid("Punch", 0), QString("Punch"));
    EXPECT_EQ(Mid("Punch", 4, INT_MAX), QString("ch"));
}

TEST(Text, CLongReadsTheLeadingInteger) {
    const std::pair<const char*, int> cases[] = {
        {"", 0},    {"2.", 2},  {"05", 5},        {"  7 cl", 7},           {"-3", -3},
        {"- 3", 0}, {"1e3", 1}, {"102\r\n", 102}, {"2147483648", INT_MAX}, {"-2147483649", INT_MIN},
    };
    for (const auto& [text, number] : cases) {
        EXPECT_EQ(CLong(text), number) << text;
    }
}

TEST(Text, IsNumericTakesDecimalsOnly) {
    for (const char* text : {"2", " 0.50 ", "2.", ".5", "-1", "1.5E-2"}) {
        EXPECT_TRUE(IsNumeric(text)) << text;
    }
    for (const char* text : {"", ".", "1/2", "0x10", "1,5", "1 2", "two", "1e", "inf", "1.2.3"}) {
        EXPECT_FALSE(IsNumeric(text)) << text;
    }
}
