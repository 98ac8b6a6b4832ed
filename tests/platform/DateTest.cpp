#include "platform/base/Date.h"

#include "platform/base/Random.h"

#include <gtest/gtest.h>

#include <set>

TEST(Date, SQLDateIsReadPaddedOrNotAndNeverFails) {
    struct Case {
        const char* text;
        const char* date;
    };
    const Case cases[] = {
        {"2009-3-7", "2009-03-07"},   {"2009-03-07", "2009-03-07"}, {" 2024-2-29 ", "2024-02-29"},
        {"", "1904-01-01"},           {"2009-02-29", "1904-01-01"}, {"2009-13-01", "1904-01-01"},
        {"yesterday", "1904-01-01"},  {"2009-3", "1904-01-01"},     {"2009-3-7-1", "1904-01-01"},
        {"0000-00-00", "1904-01-01"},
    };
    for (const Case& row : cases) {
        Date date;
        date.SetSQLDate(row.text);
        EXPECT_EQ(date.SQLDate(), QString(row.date)) << row.text;
    }
}

TEST(Date, TotalSecondsCountWholeDaysFromMidnight) {
    Date first;
    first.SetSQLDate(QString());
    EXPECT_EQ(first.TotalSeconds(), 0.0);

    // Over a change to summer time in most places that have one.
    Date march;
    march.SetSQLDate("2024-3-1");
    Date april;
    april.SetSQLDate("2024-4-1");
    EXPECT_EQ(april.TotalSeconds() - march.TotalSeconds(), 31 * 86400.0);

    // A date read back is midnight, so that it lies before the present moment of the same day.
    const Date now;
    Date today;
    today.SetSQLDate(now.SQLDate());
    EXPECT_GE(now.TotalSeconds(), today.TotalSeconds());
    EXPECT_LT(now.TotalSeconds() - today.TotalSeconds(), 86400.0);
}

TEST(Date, PartsRollOver) {
    Date date;
    date.SetSQLDate("2024-02-29");
    date.SetYear(2023);
    EXPECT_EQ(date.SQLDate(), QString("2023-03-01"));
    date.SetMonth(13);
    EXPECT_EQ(date.SQLDate(), QString("2024-01-01"));
    date.SetDay(0);
    EXPECT_EQ(date.SQLDate(), QString("2023-12-31"));
}

TEST(Random, NewObjectsDifferAndBothEndsCanCome) {
    std::set<int> firstNumbers;
    for (int count = 0; count < 20; ++count) {
        firstNumbers.insert(Random().InRange(0, 1'000'000'000));
    }
    EXPECT_GT(firstNumbers.size(), 15u);

    Random random;
    std::set<int> seen;
    for (int count = 0; count < 500; ++count) {
        seen.insert(random.InRange(3, 5));
    }
    EXPECT_EQ(seen, (std::set<int>{3, 4, 5}));
    EXPECT_EQ(random.InRange(7, 7), 7);
}
