#include "platform/database/Connection.h"

#include "platform/database/EngineFailure.h"
#include "platform/database/LikeFunction.h"
#include "platform/database/RawKey.h"
#include "platform/database/RecordRows.h"
#include "platform/database/Statement.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <vector>

namespace {

// Long enough for another copy of the program to end its statement, short enough not to look dead.
constexpr int BusyMilliseconds = 1000;

QByteArray Quoted(QByteArray text, char mark) {
    const QByteArray one(1, mark);
    return one + text.replace(one, one + one) + one;
}

void MakeEmptyFile(const QByteArray& path) {
    const int file = open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0) {
        throw EngineFailure(qt_error_string(errno));
    }
    close(file);
}

QByteArray InsertText(const QString& table, const DatabaseRecord& record) {
    const QByteArray into = "INSERT INTO " + Quoted(table.toUtf8(), '"');
    if (record.Columns().empty()) {
        return into + " DEFAULT VALUES";
    }
    QByteArrayList names;
    QByteArrayList places;
    for (const auto& [name, value] : record.Columns()) {
        names.append(Quoted(name.toUtf8(), '"'));
        places.append("?");
    }
    return into + " (" + names.join(", ") + ") VALUES (" + places.join(", ") + ')';
}

} // namespace

void Connection::Closer::operator()(sqlite3* engine) const {
    sqlite3_close(engine);
}

Connection::Connection(const QString& path) {
    sqlite3* engine = nullptr;
    // All database work is done on the one thread of the program, so the engine need not guard against others.
    const int code =
        sqlite3_open_v2(path.toUtf8().constData(), &engine, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    engine_.reset(engine);
    if (code != SQLITE_OK) {
        throw EngineFailure(code);
    }
    sqlite3_busy_timeout(engine, BusyMilliseconds);
    InstallLike(engine);
    journal_ = std::make_unique<BurstJournal>(engine, BusyMilliseconds);
}

std::unique_ptr<Connection> Connection::ToFile(const QString& path, const QString& key, const DerivedKey& derived) {
    std::unique_ptr<Connection> connection(new Connection(path));
    // To the engine an empty file is a database that has no tables yet.
    if (QFileInfo(path).size() == 0) {
        throw EngineFailure(SQLITE_NOTADB);
    }
    if (!key.isEmpty()) {
        connection->SetKey(RawKey(connection->engine_.get(), key, derived));
    }
    // A list of 100,000 drinks is read in the order of their names, which jumps about in the file. Without room for the
    // pages each would be decrypted many times over. The memory, in KiB, is taken only as pages are read.
    Statement(connection->engine_.get(), "PRAGMA cache_size = -65536").Run();
    // The first read checks the key and the file's length.
    Statement(connection->engine_.get(), "SELECT COUNT(*) FROM sqlite_master").Run();
    return connection;
}

std::unique_ptr<Connection> Connection::ToNewFile(const QString& path, const QString& key, const DerivedKey& derived) {
    const QByteArray encoded = QFile::encodeName(path);
    MakeEmptyFile(encoded);
    try {
        std::unique_ptr<Connection> connection(new Connection(path));
        if (!key.isEmpty()) {
            connection->SetKey(derived.salt.isEmpty() ? key.toUtf8() : RawKey(derived));
        }
        // An empty transaction writes the first page.
        Statement(connection->engine_.get(), "BEGIN IMMEDIATE").Run();
        Statement(connection->engine_.get(), "COMMIT").Run();
        return connection;
    } catch (const EngineFailure&) {
        unlink(encoded.constData());
        throw;
    }
}

RecordSet Connection::Select(const QString& statement) {
    return RecordSet(Statement(engine_.get(), statement.toUtf8()).ReadAll());
}

void Connection::Execute(const QString& statement) {
    Statement running(engine_.get(), statement.toUtf8());
    Write(running);
}

void Connection::Insert(const QString& table, const DatabaseRecord& record) {
    std::vector<QByteArray> values;
    for (const auto& [name, value] : record.Columns()) {
        values.push_back(value.toUtf8());
    }
    Statement statement(engine_.get(), InsertText(table, record));
    for (std::size_t place = 0; place < values.size(); ++place) {
        statement.Bind(int(place) + 1, values[place]);
    }
    Write(statement);
}

void Connection::Write(Statement& statement) {
    if (statement.Writes()) {
        journal_->BeforeWriting();
    }
    statement.Run();
}

void Connection::Commit() {
    if (sqlite3_get_autocommit(engine_.get()) == 0) {
        Statement(engine_.get(), "COMMIT").Run();
    }
}

int Connection::LastRowID() const {
    const sqlite3_int64 last = sqlite3_last_insert_rowid(engine_.get());
    return int(std::clamp<sqlite3_int64>(last, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

void Connection::SetKey(const QByteArray& key) {
    Statement(engine_.get(), "PRAGMA key = " + Quoted(key, '\'')).Run();
    // A version 4 library reads and writes the format of version 3 only when told so; version 3 ignores this.
    Statement(engine_.get(), "PRAGMA cipher_compatibility = 3").Run();
}
