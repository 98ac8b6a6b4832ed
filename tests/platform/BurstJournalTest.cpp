#include "DatabaseFixture.h"

#include <QDir>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace {

class BurstJournalTest : public DatabaseTest {
protected:
    static void Write(REALSQLDatabase& database, int first, int last) {
        for (int rating = first; rating <= last; ++rating) {
            Run(database, QStringLiteral("UPDATE Drinks SET UserRating = %1").arg(rating));
        }
    }
    static QString Rating(REALSQLDatabase& database) { return Value(database, "(SELECT MIN(UserRating) FROM Drinks)"); }
    [[nodiscard]] QString Files() const { return QDir(folder_.path()).entryList(QDir::Files).join(" "); }

    void CloseAndExpectAnOrdinaryFile(const QString& rating) {
        database_.Close();
        EXPECT_EQ(Files(), "drinks.rsd");
        EXPECT_EQ(Shell(Path(), "PRAGMA key='MerryMead246'; PRAGMA journal_mode; SELECT UserRating FROM Drinks;"),
                  "delete\n" + rating + '\n' + rating);
    }
};

TEST_F(BurstJournalTest, ABurstKeepsOthersReadingAndTheLastToCloseEndsTheLog) {
    Write(database_, 1, 1);
    EXPECT_EQ(Files(), "drinks.rsd") << "a lone statement";
    REALSQLDatabase other;
    Open(other);
    Write(database_, 2, 5);
    Run(other, "BEGIN");
    EXPECT_EQ(Rating(other), "5");
    Write(database_, 6, 9);
    database_.SQLExecute("UPDATE Drinks SET DrinkName = 'Fizz'");
    EXPECT_EQ(database_.ErrorMessage(), QString("UNIQUE constraint failed: Drinks.DrinkName"));
    database_.Close();
    Run(other, "COMMIT");
    EXPECT_EQ(Rating(other), "9");
    other.Close();
    CloseAndExpectAnOrdinaryFile("9");
}

TEST_F(BurstJournalTest, AKillInTheMiddleLosesNothing) {
    database_.Close();
    const pid_t child = fork();
    if (child == 0) {
        Open(database_);
        Write(database_, 1, 30);
        kill(getpid(), SIGKILL);
    }
    waitpid(child, nullptr, 0);
    EXPECT_TRUE(Files().contains("drinks.rsd-wal"));
    Open(database_);
    CloseAndExpectAnOrdinaryFile("30");
}

} // namespace
