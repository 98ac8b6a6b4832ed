#pragma once

#include "platform/database/DatabaseRecord.h"
#include "platform/database/DerivedKey.h"
#include "platform/database/RecordSet.h"
#include "platform/files/FolderItem.h"

#include <QString>

#include <functional>
#include <memory>

class Connection;

// One connection to an SQL database file, encrypted as a whole or plain. It closes when the object goes.
//
// Every statement is final when the call returns, unless a BEGIN was executed before; nothing is held back for
// `Close`. Connections may overlap, to the same file too: no lock is held between two calls. When another
// program holds the file, a call waits about one second and then fails with the engine's words.
//
// From the second writing statement on, a connection keeps a log beside the file, encrypted too (see BurstJournal.h).
// `Close` brings it into the file. After a kill the next connection reads it, so the two must not be parted.
//
// File format: SQLCipher 3 (page size 1024; AES-256 in CBC mode; HMAC-SHA1 on each page; key by PBKDF2-HMAC-SHA1
// with 64,000 rounds over the salt in the first 16 bytes). Any SQLCipher tool opens the file with the key; version 4
// needs "PRAGMA cipher_compatibility = 3" after it.
//
// LIKE ignores case and accents on these connections, for letters of the Latin, Greek and Cyrillic scripts: "creme"
// finds "Crème" and the other way round. "%" stands for any text and "_" for one character.
class REALSQLDatabase {
public:
    REALSQLDatabase();
    ~REALSQLDatabase();
    REALSQLDatabase(const REALSQLDatabase&) = delete;
    REALSQLDatabase& operator=(const REALSQLDatabase&) = delete;

    // The file and the key count from the next `Connect` on. An empty key means a plain file.
    void SetDatabaseFile(const FolderItem& file);
    void SetEncryptionKey(const QString& key);

    // Spares `Connect` the deriving, some 30 milliseconds once for each salt, when the file has this salt. A file with
    // another opens as well, by the encryption key. A new file gets this salt. It must have been derived from the
    // encryption key: otherwise a file with this salt does not open, and a new one opens only with `derived`.
    void SetDerivedKey(const DerivedKey& derived);

    // Opens the file and reads its first page, which shows whether it is a database and the key fits. It never makes
    // a file. On false `ErrorMessage` has the engine's words, and the object is closed. An open connection is
    // closed first. A database file that was never set, or is nil, throws NilObjectException.
    [[nodiscard]] bool Connect();

    // Makes a new file without tables, in the format above, open to the user alone (0600), and connects to it. On
    // false, as when the file exists already, `ErrorMessage` says why and no file was made.
    [[nodiscard]] bool CreateDatabaseFile();

    // Both run exactly one statement. Text behind it other than white space and comments makes the call fail, and
    // then nothing of the text has run. A failed `SQLSelect` returns nil.
    RecordSet SQLSelect(const QString& statement);
    void SQLExecute(const QString& statement);

    // Inserts one row; the values need no quoting.
    void InsertRecord(const QString& table, const DatabaseRecord& record);

    // Ends a transaction that a BEGIN opened; without one there is nothing to do.
    void Commit();

    // The key of the row that this connection inserted last; 0 when there was none or the connection is closed.
    int LastRowID() const;

    // Closing a closed connection does nothing.
    void Close();

    // Whether the last `Connect`, `CreateDatabaseFile`, `SQLSelect`, `SQLExecute` or `InsertRecord` failed. `Commit`
    // sets it when it fails, and otherwise leaves it: who reads it after `InsertRecord` and `Commit` hears of both.
    // The answer stays after `Close`.
    bool Error() const;

    // The engine's words for that failure; empty when there was none.
    QString ErrorMessage() const;

private:
    Connection& Opened() const;

    // The one place where a failure of the engine becomes `Error` and `ErrorMessage`; false when there was one.
    bool Attempt(const std::function<void()>& deed);

    FolderItem file_;
    QString key_;
    DerivedKey derivedKey_;
    QString errorMessage_;
    bool error_ = false;
    std::unique_ptr<Connection> connection_;
};
