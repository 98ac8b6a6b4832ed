#include "DatabaseFixture.h"

namespace {

TEST_F(DatabaseTest, ExactlyOneStatementRuns) {
    struct Case {
        QString text;
        bool runs;
    };
    const Case cases[] = {
        {"DELETE FROM Drinks WHERE DrinkID = 1", true},
        {"DELETE FROM Drinks WHERE DrinkID = 1;", true},
        {"-- why\nDELETE FROM Drinks WHERE DrinkID = 1 ; \n\t -- because\n /* and */ ", true},
        {"DELETE FROM Drinks WHERE DrinkID = 1; /* open", true},
        {"DELETE FROM Drinks WHERE DrinkID = 1; SELECT 1", false},
        {"DELETE FROM Drinks WHERE DrinkID = 1;;", false},
        {"DELETE FROM Drinks WHERE DrinkID = 1; nonsense", false},
        {"DELETE FROM Drinks WHERE DrinkID = 1; -- x\nDELETE FROM Drinks", false},
        {QStringLiteral("DELETE FROM Drinks WHERE DrinkID = 1") + QChar(0) + " AND 0", false},
        {"SELECT * FROM Drinks WHERE DrinkName = 'x'; DELETE FROM Drinks; --'", false},
        {"SELECT * FROM Drinks WHERE DrinkName = 'Planter's Punch'", false},
        {"", false},
        {" ; ", false},
        {"-- nothing", false},
    };
    for (const Case& row : cases) {
        for (const bool isSelect : {false, true}) {
            REALSQLDatabase database;
            Open(database);
            Run(database, "BEGIN");
            if (isSelect) {
                EXPECT_EQ(database.SQLSelect(row.text).IsNil(), !row.runs) << row.text.toStdString();
            } else {
                database.SQLExecute(row.text);
            }
            EXPECT_EQ(database.Error(), !row.runs) << row.text.toStdString();
            EXPECT_EQ(database.ErrorMessage().isEmpty(), row.runs) << row.text.toStdString();
            EXPECT_EQ(DrinkCount(database), QString(row.runs ? "1" : "2")) << row.text.toStdString();
        }
    }
}

TEST_F(DatabaseTest, ErrorSpeaksOfTheLastStatementAndCommitNeverClearsIt) {
    REALSQLDatabase database;
    Open(database);
    DatabaseRecord gin;
    gin.SetColumn("IngredientName", "Gin");
    database.InsertRecord("Ingredients", gin);
    database.Commit();
    EXPECT_FALSE(database.Error());
    EXPECT_EQ(database.LastRowID(), 1);

    database.InsertRecord("Ingredients", gin);
    database.Commit();
    EXPECT_TRUE(database.Error());
    EXPECT_EQ(database.ErrorMessage(), QString("UNIQUE constraint failed: Ingredients.IngredientName"));

    Run(database, "UPDATE Ingredients SET IngredientName = 'Rum'");
    EXPECT_EQ(database.ErrorMessage(), QString());

    database.SQLExecute("UPDATE Nowhere SET A = 1");
    database.Close();
    EXPECT_EQ(database.ErrorMessage(), QString("no such table: Nowhere"));
    database.Commit();
    EXPECT_TRUE(database.Error());
}

TEST_F(DatabaseTest, FailedCommitIsReported) {
    REALSQLDatabase reader;
    REALSQLDatabase writer;
    Open(reader);
    Open(writer);
    Run(reader, "BEGIN");
    EXPECT_EQ(DrinkCount(reader), QString("2"));
    Run(writer, "BEGIN");
    Run(writer, "DELETE FROM Drinks");
    writer.Commit();
    EXPECT_TRUE(writer.Error());
    EXPECT_EQ(writer.ErrorMessage(), QString("database is locked"));
    reader.Close();
    Run(writer, "COMMIT");
    EXPECT_EQ(DrinkCount(writer), QString("0"));
}

TEST_F(DatabaseTest, InsertedValuesNeedNoQuotingAndTakeTheColumnsType) {
    REALSQLDatabase database;
    Open(database);
    const QString name = "x'; DELETE FROM Drinks; --\n\"é🍸";
    DatabaseRecord record;
    record.SetColumn("DrinkName", "replaced below");
    record.SetColumn("DrinkName", name);
    record.SetColumn("UserRating", "4");
    database.InsertRecord("Drinks", record);
    ASSERT_FALSE(database.Error()) << database.ErrorMessage().toStdString();
    EXPECT_EQ(database.LastRowID(), 3);
    EXPECT_EQ(Value(database, "(SELECT DrinkName FROM Drinks WHERE DrinkID = 3 AND UserRating = 4)"), name);
    EXPECT_EQ(Value(database, "(SELECT typeof(UserRating) FROM Drinks WHERE DrinkID = 3)"), QString("integer"));

    database.InsertRecord("Drinks", DatabaseRecord());
    EXPECT_EQ(Value(database, "(SELECT DrinkName IS NULL FROM Drinks WHERE DrinkID = 4)"), QString("1"));

    DatabaseRecord wrong;
    wrong.SetColumn("Nothing\" --", "1");
    database.InsertRecord("Drinks", wrong);
    EXPECT_TRUE(database.Error());
    EXPECT_EQ(DrinkCount(database), QString("4"));
}

} // namespace
