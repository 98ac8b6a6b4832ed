#include "DatabaseFixture.h"

namespace {

class LikeTest : public DatabaseTest {
protected:
    static QString Quoted(QString text) { return u'\'' + text.replace("'", "''") + u'\''; }

    static QString Like(REALSQLDatabase& database, const QString& text, const QString& pattern) {
        return Value(database, qPrintable(Quoted(text) + " LIKE " + Quoted(pattern)));
    }
};

TEST_F(LikeTest, IgnoresCaseAndAccentsAndKeepsWildcards) {
    struct Case {
        const char* text;
        const char* pattern;
        bool matches;
    };
    const Case cases[] = {
        {"Crème de Cacao", "%creme%", true},
        {"Creme de Cacao", "%CRÈME%", true},
        {"Piña Colada", "%pina c%", true},
        {"Pina Colada", "piña%", true},
        {"Cre\u0300me", "%crème%", true},
        {"Crème", "cre\u0300me", true},
        {"Cre\u0300me", "%creme", true},
        {"Cre\u0300me", "cr_me", true},
        {"Cre\u0300me", "cr__me", false},
        {"Crème", "cr_me", true},
        {"Gin\u0301", "%gin", true},
        {"\u0301Gin", "gin", true},
        {"Łódź Smørrebrød", "%lodz smorre%", true},
        {"ΡΑΚΊ", "%ρακι%", true},
        {"Ελληνικός", "%ΕΛΛΗΝΙΚΟΣ%", true},
        {"ВОДКА Ёлка", "%водка ел%", true},
        {"Ḗn", "en", true},
        {"Straße", "%STRASSE%", false},
        {"カクテル", "%クテ%", true},
        {"カクテル", "%ガ%", false},
        {"🍸 Martini", "_ martini", true},
        {"Gin Fizz", "%gin%fizz%", true},
        {"Gin Fizz", "%fizz%gin%", false},
        {"Gin Fizz", "gin", false},
        {"Gin Fizz", "%z", true},
        {"Gin Fizz", "%i", false},
        {"Gin Fizz", "_in%_z", true},
        {"aab", "%ab", true},
        {"aaaaaaaaaaaaaaaaaaaaaaab", "%a%a%a%a%a%a%a%a%c", false},
        {"mississippi", "%ssip%", true},
        {"", "", true},
        {"", "%", true},
        {"", "%%", true},
        {"", "_", false},
        {"x", "", false},
        {"100%", "100%%", true},
        {"oz", "OZ", true},
        {"ozs", "oz", false},
        {"3", "3", true},
        {"@[`{", "@[`{", true},
        {"`", "%@%", false},
        {"{", "%[%", false},
    };
    REALSQLDatabase database;
    Open(database);
    for (const Case& row : cases) {
        EXPECT_EQ(Like(database, row.text, row.pattern), QString(row.matches ? "1" : "0"))
            << row.text << " LIKE " << row.pattern;
    }
}

TEST_F(LikeTest, AgreesWithTheEngineOnPlainText) {
    // Every pattern of four signs out of six against some texts, as the engine's own LIKE in the shell sees them.
    const char* matching =
        "WITH S(C) AS (VALUES ('a'), ('B'), ('%'), ('_'), ('b'), ('')), "
        "P(P) AS (SELECT W.C || X.C || Y.C || Z.C FROM S W, S X, S Y, S Z), T(T) AS (VALUES (''), ('a'), ('b'), "
        "('ab'), ('ABA'), ('bbab'), ('aabb'), ('c')) "
        "SELECT COUNT(*) AS N, SUM(length(P) * 7 + unicode(P || 'x') * 3 + length(T)) AS Mix FROM P, T WHERE T LIKE P";
    REALSQLDatabase database;
    Open(database);
    const RecordSet ours = database.SQLSelect(matching);
    ASSERT_FALSE(ours.IsNil()) << database.ErrorMessage().toStdString();
    EXPECT_EQ(ours.Field("N").StringValue() + '|' + ours.Field("Mix").StringValue(),
              Shell(":memory:", QByteArray(matching) + ';'));
    EXPECT_GT(ours.Field("N").IntegerValue(), 1000);
}

TEST_F(LikeTest, NullEscapeAndOddBytes) {
    struct Case {
        const char* expression;
        const char* value;
    };
    const Case cases[] = {
        {"ifnull(NULL LIKE '%', 'null')", "null"},
        {"ifnull('a' LIKE NULL, 'null')", "null"},
        {"ifnull('a' LIKE 'a' ESCAPE NULL, 'null')", "null"},
        {"'100%' LIKE '%0x%' ESCAPE 'x'", "1"},
        {"'1000' LIKE '%0x%' ESCAPE 'x'", "0"},
        {"'a_b' LIKE 'Aé_B' ESCAPE 'é'", "1"},
        {"'ax' LIKE 'ax' ESCAPE 'x'", "0"},
        {"'a_É' LIKE 'A!__' ESCAPE '!'", "1"},
        {"'axE' LIKE 'A!__' ESCAPE '!'", "0"},
        {"'a' LIKE 'a' ESCAPE 'xy'", "(none)"},
        {"12 LIKE '1%'", "1"},
        {"CAST(x'41FF42' AS TEXT) LIKE 'a_b'", "1"},
        {"CAST(x'41C3' AS TEXT) LIKE 'a_'", "1"},
        {"CAST(x'41E28281' AS TEXT) LIKE 'a_'", "1"},
    };
    REALSQLDatabase database;
    Open(database);
    for (const Case& row : cases) {
        EXPECT_EQ(Value(database, row.expression), QString(row.value)) << row.expression;
    }
    // One statement whose pattern and escape change from row to row.
    EXPECT_EQ(Value(database, "(SELECT group_concat(T LIKE P ESCAPE E) FROM (SELECT 'a%' AS T, 'ax%' AS P, 'x' AS E "
                              "UNION ALL SELECT 'ab', 'ax%', 'x' UNION ALL SELECT 'axb', 'ax%', 'y' "
                              "UNION ALL SELECT 'b', '%b', 'x'))"),
              QString("1,0,1,1"));
}

} // namespace
