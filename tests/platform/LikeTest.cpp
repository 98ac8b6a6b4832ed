#include "DatabaseFixture.h"

namespace {

TEST_F(DatabaseTest, LikeIgnoresCaseAndAccentsAndKeepsWildcards) {
    const std::pair<const char*, const char*> cases[] = {
        {"'Crème de Cacao' LIKE '%creme%'", "1"},  {"'Creme de Cacao' LIKE '%CRÈME%'", "1"},
        {"'Cre\u0300me' LIKE '%crème'", "1"},      {"'Cre\u0300me' LIKE 'cr_me'", "1"},
        {"'Cre\u0300me' LIKE 'cr__me'", "0"},      {"'Łódź Smørrebrød' LIKE '%lodz smorre%'", "1"},
        {"'Ελληνικός' LIKE '%ΕΛΛΗΝΙΚΟΣ%'", "1"},   {"'カクテル' LIKE '%クテ%'", "1"},
        {"'🍸 Martini' LIKE '_ martini'", "1"},     {"'`{' LIKE '%@%' OR '`{' LIKE '%[%'", "0"},
        {"ifnull(NULL LIKE '%', 'null')", "null"}, {"'100%' LIKE '%0x%' ESCAPE 'x'", "1"},
        {"'1000' LIKE '%0x%' ESCAPE 'x'", "0"},    {"'a_b' LIKE 'Aé_B' ESCAPE 'é'", "1"},
        {"'a' LIKE 'a' ESCAPE 'xy'", "(none)"},    {"CAST(x'41FF42' AS TEXT) LIKE 'a_b'", "1"},
    };
    for (const auto& [expression, value] : cases) {
        EXPECT_EQ(Value(database_, expression), QString(value)) << expression;
    }
}

TEST_F(DatabaseTest, LikeAgreesWithTheEngineOnPlainText) {
    // Every pattern of four signs out of six against some texts, as the engine's own LIKE in the shell sees them.
    const char* matching =
        "WITH S(C) AS (VALUES ('a'), ('B'), ('%'), ('_'), ('b'), ('')), "
        "P(P) AS (SELECT W.C || X.C || Y.C || Z.C FROM S W, S X, S Y, S Z), T(T) AS (VALUES (''), ('a'), ('b'), "
        "('ab'), ('ABA'), ('bbab'), ('aabb'), ('c')) "
        "SELECT COUNT(*) || '|' || SUM(length(P) * 7 + unicode(P || 'x') * 3 + length(T)) AS Mix FROM P, T "
        "WHERE T LIKE P";
    const RecordSet ours = database_.SQLSelect(matching);
    EXPECT_EQ(ours.Field("Mix").StringValue(), Shell(":memory:", QByteArray(matching) + ';'));
}

} // namespace
