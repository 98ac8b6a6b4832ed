#include "platform/database/Database.h"

#include "platform/database/Connection.h"
#include "platform/database/EngineFailure.h"

REALSQLDatabase::REALSQLDatabase() = default;
REALSQLDatabase::~REALSQLDatabase() = default;

void REALSQLDatabase::SetDatabaseFile(const FolderItem& file) {
    file_ = file;
}

void REALSQLDatabase::SetEncryptionKey(const QString& key) {
    key_ = key;
}

void REALSQLDatabase::SetDerivedKey(const DerivedKey& derived) {
    derivedKey_ = derived;
}

bool REALSQLDatabase::Connect() {
    Close();
    const QString path = file_.AbsolutePath();
    return Attempt([&] { connection_ = Connection::ToFile(path, key_, derivedKey_); });
}

bool REALSQLDatabase::CreateDatabaseFile() {
    Close();
    const QString path = file_.AbsolutePath();
    return Attempt([&] { connection_ = Connection::ToNewFile(path, key_, derivedKey_); });
}

RecordSet REALSQLDatabase::SQLSelect(const QString& statement) {
    RecordSet records;
    static_cast<void>(Attempt([&] { records = Opened().Select(statement); }));
    return records;
}

void REALSQLDatabase::SQLExecute(const QString& statement) {
    static_cast<void>(Attempt([&] { Opened().Execute(statement); }));
}

void REALSQLDatabase::InsertRecord(const QString& table, const DatabaseRecord& record) {
    static_cast<void>(Attempt([&] { Opened().Insert(table, record); }));
}

void REALSQLDatabase::Commit() {
    const bool earlierError = error_;
    const QString earlierMessage = errorMessage_;
    if (Attempt([&] { Opened().Commit(); })) {
        error_ = earlierError;
        errorMessage_ = earlierMessage;
    }
}

int REALSQLDatabase::LastRowID() const {
    return connection_ ? connection_->LastRowID() : 0;
}

void REALSQLDatabase::Close() {
    connection_.reset();
}

bool REALSQLDatabase::Error() const {
    return error_;
}

QString REALSQLDatabase::ErrorMessage() const {
    return errorMessage_;
}

Connection& REALSQLDatabase::Opened() const {
    if (!connection_) {
        throw EngineFailure(QStringLiteral("the database is not open"));
    }
    return *connection_;
}

bool REALSQLDatabase::Attempt(const std::function<void()>& deed) {
    error_ = false;
    errorMessage_.clear();
    try {
        deed();
    } catch (const EngineFailure& failure) {
        error_ = true;
        errorMessage_ = failure.Words();
    }
    return !error_;
}
