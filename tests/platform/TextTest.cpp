#include "platform/base/Text.h"

#include <gtest/gtest.h>

#include <climits>

TEST(Text, InStrCountsFromOneAndIgnoresCase) {
    struct Case {
        int start;
        const char* text;
        const char* search;
        int place;
    };
    const Case cases[] = {
        {1, "V01V05V04", "V05", 4}, {1, "V01V05V04", "v04", 7}, {1, "V01", "V02", 0}, {1, "", "V02", 0},
        {1, "Gin", "", 0},          {1, "aba", "A", 1},         {2, "aba", "A", 3},   {4, "aba", "A", 0},
        {-5, "aba", "A", 1},        {99, "aba", "A", 0},        {1, "CRÈME", "è", 3},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(InStr(row.start, row.text, row.search), row.place) << row.text << " / " << row.search;
    }
    EXPECT_EQ(InStr("2.25", "."), 2);
}

TEST(Text, PartsTakeAnyNumber) {
    struct Case {
        int number;
        const char* left;
        const char* right;
        const char* mid;
    };
    const Case cases[] = {
        {INT_MIN, "", "", "Punch"}, {-1, "", "", "Punch"},           {0, "", "", "Punch"},
        {1, "P", "h", "Punch"},     {2, "Pu", "ch", "unch"},         {5, "Punch", "Punch", "h"},
        {6, "Punch", "Punch", ""},  {INT_MAX, "Punch", "Punch", ""},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(Left("Punch", row.number), QString(row.left)) << row.number;
        EXPECT_EQ(Right("Punch", row.number), QString(row.right)) << row.number;
        EXPECT_EQ(Mid("Punch", row.number), QString(row.mid)) << row.number;
    }
    EXPECT_EQ(Mid("Punch", 2, 3), QString("unc"));
    EXPECT_EQ(Mid("Punch", 4, INT_MAX), QString("ch"));
    EXPECT_EQ(Mid("Punch", 2, -1), QString());
}

TEST(Text, ReplaceChangesOneAndReplaceAllEach) {
    struct Case {
        const char* text;
        const char* search;
        const char* replacement;
        const char* first;
        const char* all;
    };
    const Case cases[] = {
        {"Planter's Punch", "'", "''", "Planter''s Punch", "Planter''s Punch"},
        {"Devil's Aunt's", "'", "''", "Devil''s Aunt's", "Devil''s Aunt''s"},
        {"1.0.2", ".", "", "10.2", "102"},
        {"Gin", "", "x", "Gin", "Gin"},
        {"aXbx", "x", "-", "a-bx", "a-b-"},
        {"Gin", "rum", "x", "Gin", "Gin"},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(Replace(row.text, row.search, row.replacement), QString(row.first));
        EXPECT_EQ(ReplaceAll(row.text, row.search, row.replacement), QString(row.all));
    }
}

TEST(Text, CLongReadsTheLeadingInteger) {
    struct Case {
        const char* text;
        int number;
    };
    const Case cases[] = {
        {"", 0},
        {"2.", 2},
        {"05", 5},
        {"125", 125},
        {"  7 cl", 7},
        {"-3", -3},
        {"+3", 3},
        {"- 3", 0},
        {"--3", 0},
        {"abc", 0},
        {"1e3", 1},
        {"102\r\n", 102},
        {"\t12", 12},
        {".5", 0},
        {"2147483647", INT_MAX},
        {"2147483648", INT_MAX},
        {"-2147483648", INT_MIN},
        {"-9999999999999999999999", INT_MIN},
        {"99999999999999999999999", INT_MAX},
        {"٣", 0},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(CLong(row.text), row.number) << row.text;
    }
}

TEST(Text, IsNumericTakesDecimalsOnly) {
    for (const char* text : {"2", "1.5", " 0.50 ", "2.", ".5", "-1", "+1", "1e3", "1.5E-2", "007"}) {
        EXPECT_TRUE(IsNumeric(text)) << text;
    }
    for (const char* text :
         {"", " ", ".", "-", "1/2", "0x10", "1,5", "1 2", "two", "1e", "e3", "inf", "nan", "1.2.3", "½"}) {
        EXPECT_FALSE(IsNumeric(text)) << text;
    }
}

TEST(Text, FirstCharacterAndEquality) {
    EXPECT_EQ(Asc(""), 0);
    EXPECT_EQ(Asc(QString(QChar(28))), 28);
    EXPECT_EQ(Asc("🍸 time"), 0x1F378);
    EXPECT_TRUE(SameText("HighBall", "Highball"));
    EXPECT_TRUE(SameText("CRÈME", "crème"));
    EXPECT_FALSE(SameText("Creme", "Crème"));
    EXPECT_EQ(Trim(" \t Gin Fizz \r\n"), QString("Gin Fizz"));
}
