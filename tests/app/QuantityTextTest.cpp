#include "browser/QuantityText.h"

#include <gtest/gtest.h>

TEST(QuantityText, ReadsTheDigitsBehindThePointAsAWholeNumber) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"0", "oz", "oz"},           {"0", "", ""},
        {"2", "oz", "2 oz"},         {"", "dash", " dash"},
        {"0.5", "oz", "1/2 oz"},     {"1.5", "oz", "1 1/2 oz"},
        {"2.25", "oz", "2 1/4 oz"},  {"0.75", "oz", "3/4 oz"},
        {"0.33", "oz", "1/3 oz"},    {"1.66", "oz", "1 2/3 oz"},
        {"0.1", "oz", "1/10 oz"},    {"0.2", "oz", "1/5 oz"},
        {"0.125", "oz", ".125 oz"},  {"1.125", "oz", "1.125 oz"},
        {"2.0", "oz", "2.0 oz"},     {"0.333", "oz", ".333 oz"},
        {"1.05", "oz", "1 1/2 oz"},  {"0.50", "oz", ".50 oz"},
        {".5", "oz", "1/2 oz"},      {"2.", "oz", "2.0 oz"},
        {"1.2.5", "oz", "1 1/5 oz"}, {" 1.5 ", "oz", "1 1/2 oz"},
        {"1.5", "", "1 1/2 "},
    };
    for (const auto& [quantity, unit, shown] : cases) {
        EXPECT_EQ(QuantityText(QString(quantity), QString(unit)), shown) << "for " << quantity;
    }
}
