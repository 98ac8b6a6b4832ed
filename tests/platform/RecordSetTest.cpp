#include "DatabaseFixture.h"
#include "platform/base/Exceptions.h"

#include <climits>

namespace {

TEST_F(DatabaseTest, FieldsAnswerByNameWithAndWithoutAlias) {
    const RecordSet records =
        database_.SQLSelect("SELECT D.DrinkName, D.DrinkID, E.DrinkID, COUNT(E.DrinkID) FROM Drinks AS D INNER JOIN "
                            "Drinks AS E ON (E.DrinkID = D.DrinkID + 1)");
    for (const char* name : {"DrinkName", "D.DrinkName", "drinkname", "X.DRINKNAME"}) {
        EXPECT_EQ(records.Field(name).StringValue(), QString("Crème Fizz")) << name;
    }
    // The first of two columns with one name, wherever the search begins.
    EXPECT_EQ(records.Field("DrinkID").IntegerValue(), 1);
    EXPECT_EQ(records.Field("DrinkID").IntegerValue(), 1);
    EXPECT_EQ(records.Field("COUNT(E.DrinkID)").IntegerValue(), 1);
    for (const char* name : {"UserRating", "", "D.", "DrinkID)"}) {
        EXPECT_THROW(records.Field(name), KeyNotFoundException) << name;
    }
}

TEST_F(DatabaseTest, ValuesReadAsTheFieldIsAsked) {
    const std::tuple<const char*, const char*, int> cases[] = {
        {"NULL", "", 0}, {"-1", "-1", -1},      {"5000000000", "5000000000", INT_MAX},
        {"'1'", "1", 1}, {"'0.50'", "0.50", 0}, {"2.75", "2.75", 2},
    };
    for (const auto& [expression, text, integer] : cases) {
        const RecordSet records = database_.SQLSelect(QStringLiteral("SELECT %1 AS Value").arg(expression));
        const DatabaseField field = records.Field("Value");
        EXPECT_EQ(field.IsNull(), *text == '\0') << expression;
        EXPECT_EQ(field.StringValue(), QString(text)) << expression;
        EXPECT_EQ(field.IntegerValue(), integer) << expression;
    }
}

TEST_F(DatabaseTest, ClosedRecordSetKeepsItsEof) {
    RecordSet records = database_.SQLSelect("SELECT * FROM Drinks ORDER BY DrinkID");
    const RecordSet sameSet = records;
    records.MoveNext();
    EXPECT_EQ(sameSet.Field("DrinkID").IntegerValue(), 2);
    RecordSet atEnd = database_.SQLSelect("SELECT * FROM Drinks WHERE DrinkID = 9");
    records.Close();
    atEnd.Close();
    EXPECT_FALSE(sameSet.Eof());
    EXPECT_TRUE(atEnd.Eof());
    EXPECT_THROW(sameSet.Field("DrinkID"), RuntimeException);
    EXPECT_THROW(records.MoveNext(), RuntimeException);
}

} // namespace
