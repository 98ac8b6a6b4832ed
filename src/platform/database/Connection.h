#pragma once

#include "platform/database/BurstJournal.h"
#include "platform/database/DatabaseRecord.h"
#include "platform/database/DerivedKey.h"
#include "platform/database/RecordSet.h"

#include <QString>

#include <memory>

class Statement;
struct sqlite3;

// An open database file. Every failure is an EngineFailure.
class Connection {
public:
    // Opens an existing file, and reads enough of it to know that it is a database and that the key fits.
    static std::unique_ptr<Connection> ToFile(const QString& path, const QString& key, const DerivedKey& derived);

    // Makes a new file; fails when it exists.
    static std::unique_ptr<Connection> ToNewFile(const QString& path, const QString& key, const DerivedKey& derived);

    RecordSet Select(const QString& statement);
    void Execute(const QString& statement);
    void Insert(const QString& table, const DatabaseRecord& record);
    void Commit();
    int LastRowID() const;

private:
    struct Closer {
        void operator()(sqlite3* engine) const;
    };

    explicit Connection(const QString& path);
    void SetKey(const QByteArray& key);
    void Write(Statement& statement);

    std::unique_ptr<sqlite3, Closer> engine_;
    std::unique_ptr<BurstJournal> journal_;
};
