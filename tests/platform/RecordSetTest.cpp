#include "DatabaseFixture.h"
#include "platform/base/Exceptions.h"

#include <climits>

namespace {

TEST_F(DatabaseTest, FieldsAnswerByNameWithAndWithoutAlias) {
    REALSQLDatabase database;
    Open(database);
    const RecordSet records = database.SQLSelect(
        "SELECT D.DrinkName, D.UserRating, E.UserRating, COUNT(E.DrinkID), 7 AS \"D.Seven\" FROM Drinks AS D LEFT JOIN "
        "Drinks AS E ON (E.DrinkID = D.DrinkID + 1) WHERE D.DrinkID = 1 GROUP BY D.DrinkID");
    ASSERT_FALSE(records.IsNil()) << database.ErrorMessage().toStdString();
    for (const char* name : {"DrinkName", "D.DrinkName", "drinkname", "X.DRINKNAME"}) {
        EXPECT_EQ(records.Field(name).StringValue(), QString("Crème Fizz")) << name;
    }
    // The first of two columns with one name, wherever the search begins.
    EXPECT_EQ(records.Field("UserRating").IntegerValue(), 3);
    EXPECT_EQ(records.Field("UserRating").IntegerValue(), 3);
    EXPECT_EQ(records.Field("COUNT(E.DrinkID)").IntegerValue(), 1);
    EXPECT_EQ(records.Field("Seven").IntegerValue(), 7);
    for (const char* name : {"Rating", "", "DrinkName.", "D.", "DrinkID)"}) {
        EXPECT_THROW(records.Field(name), KeyNotFoundException) << name;
    }
}

TEST_F(DatabaseTest, ValuesReadAsTheFieldIsAsked) {
    struct Case {
        const char* expression;
        bool isNull;
        const char* text;
        int integer;
        bool boolean;
    };
    const Case cases[] = {
        {"NULL", true, "", 0, false},
        {"0", false, "0", 0, false},
        {"-1", false, "-1", -1, true},
        {"5000000000", false, "5000000000", INT_MAX, true},
        {"-5000000000", false, "-5000000000", INT_MIN, true},
        {"'1'", false, "1", 1, true},
        {"''", false, "", 0, false},
        {"'0.50'", false, "0.50", 0, false},
        {"2.75", false, "2.75", 2, true},
        {"'Piña 🍹'", false, "Piña 🍹", 0, false},
        {"x'4142'", false, "AB", 0, false},
    };
    REALSQLDatabase database;
    Open(database);
    for (const Case& row : cases) {
        const DatabaseField field =
            database.SQLSelect(QStringLiteral("SELECT %1 AS Value").arg(QString(row.expression))).Field("Value");
        EXPECT_EQ(field.IsNull(), row.isNull) << row.expression;
        EXPECT_EQ(field.StringValue(), QString(row.text)) << row.expression;
        EXPECT_EQ(field.IntegerValue(), row.integer) << row.expression;
        EXPECT_EQ(field.BooleanValue(), row.boolean) << row.expression;
    }
}

TEST_F(DatabaseTest, SnapshotIsWalkedToItsEndAndOutlivesItsConnection) {
    RecordSet records;
    {
        REALSQLDatabase database;
        Open(database);
        records = database.SQLSelect("SELECT DrinkID FROM Drinks ORDER BY DrinkID");
        Run(database, "DELETE FROM Drinks");
    }
    const RecordSet sameSet = records;
    EXPECT_EQ(records.RecordCount(), 2);
    EXPECT_EQ(records.Field("DrinkID").IntegerValue(), 1);
    records.MoveNext();
    EXPECT_EQ(sameSet.Field("DrinkID").IntegerValue(), 2);
    records.MoveNext();
    records.MoveNext();
    EXPECT_TRUE(sameSet.Eof());
    EXPECT_THROW(records.Field("DrinkID"), RuntimeException);
}

TEST_F(DatabaseTest, ClosedRecordSetKeepsItsEof) {
    REALSQLDatabase database;
    Open(database);
    for (const bool isEmpty : {false, true}) {
        RecordSet records =
            database.SQLSelect(QStringLiteral("SELECT * FROM Drinks WHERE DrinkID > %1").arg(isEmpty ? 9 : 0));
        records.Close();
        records.Close();
        EXPECT_EQ(records.Eof(), isEmpty);
        EXPECT_EQ(records.RecordCount(), isEmpty ? 0 : 2);
        EXPECT_THROW(records.Field("DrinkID"), RuntimeException);
        EXPECT_THROW(records.MoveNext(), RuntimeException);
    }
}

TEST_F(DatabaseTest, NilRecordSetThrowsAtEveryUse) {
    REALSQLDatabase database;
    Open(database);
    RecordSet nil = database.SQLSelect("SELECT * FROM Nowhere");
    ASSERT_TRUE(nil.IsNil());
    EXPECT_TRUE(database.Error());
    EXPECT_THROW(static_cast<void>(nil.Eof()), NilObjectException);
    EXPECT_THROW(static_cast<void>(nil.RecordCount()), NilObjectException);
    EXPECT_THROW(static_cast<void>(nil.Field("DrinkID")), NilObjectException);
    EXPECT_THROW(nil.MoveNext(), NilObjectException);
    EXPECT_THROW(nil.Close(), NilObjectException);
}

} // namespace
