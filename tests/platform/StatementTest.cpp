#include "DatabaseFixture.h"

namespace {

TEST_F(DatabaseTest, ExactlyOneStatementRuns) {
    const QString deleting = "DELETE FROM Drinks WHERE DrinkID = 1";
    const std::pair<QString, bool> cases[] = {
        {"-- why\n" + deleting + " ; \n\t -- because\n /* and */ ", true},
        {deleting + "; -- x\nDELETE FROM Drinks", false},
        {deleting + QChar(0) + "-- AND 0", false},
        {"SELECT * FROM Drinks WHERE DrinkName = 'x'; DELETE FROM Drinks; --'", false},
        {"", false},
    };
    for (const auto& [text, runs] : cases) {
        Run(database_, "BEGIN");
        EXPECT_EQ(database_.SQLSelect(text).IsNil(), !runs) << text.toStdString();
        database_.SQLExecute(text);
        EXPECT_EQ(database_.Error(), !runs) << text.toStdString();
        EXPECT_EQ(DrinkCount(database_), QString(runs ? "1" : "2")) << text.toStdString();
        Run(database_, "ROLLBACK");
    }
}

TEST_F(DatabaseTest, CommitNeverClearsTheErrorOfTheStatementBeforeIt) {
    database_.SQLExecute("INSERT INTO Drinks (DrinkName) VALUES ('Crème Fizz')");
    database_.Commit();
    EXPECT_TRUE(database_.Error());
    EXPECT_EQ(database_.ErrorMessage(), QString("UNIQUE constraint failed: Drinks.DrinkName"));
    Run(database_, "UPDATE Drinks SET UserRating = 1");
    EXPECT_EQ(database_.ErrorMessage(), QString());
}

} // namespace
