#include "platform/base/Date.h"

#include <gtest/gtest.h>

TEST(Date, SQLDateIsReadPaddedOrNotAndNeverFails) {
    const std::pair<const char*, const char*> cases[] = {
        {"2009-3-7", "2009-03-07"},   {" 2024-02-29 ", "2024-02-29"}, {"", "1904-01-01"},
        {"2009-02-29", "1904-01-01"}, {"yesterday", "1904-01-01"},    {"2009-3-7-1", "1904-01-01"},
    };
    for (const auto& [text, day] : cases) {
        Date date;
        date.SetSQLDate(text);
        EXPECT_EQ(date.SQLDate(), QString(day)) << text;
    }
}
