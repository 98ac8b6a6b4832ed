#include "platform/base/Date.h"

#include <gtest/gtest.h>

TEST(Date, SQLDateIsReadPaddedOrNotAndNeverFails) {
    const std::pair<const char*, const char*> cases[] = {
        {"2009-3-7", "2009-3-7"},   {" 2024-02-29 ", "2024-2-29"}, {"", "1904-1-1"},
        {"2009-02-29", "1904-1-1"}, {"yesterday", "1904-1-1"},     {"2009-3-7-1", "1904-1-1"},
    };
    for (const auto& [text, day] : cases) {
        Date date;
        date.SetSQLDate(text);
        EXPECT_EQ(QString("%1-%2-%3").arg(date.Year()).arg(date.Month()).arg(date.Day()), QString(day)) << text;
    }
}
