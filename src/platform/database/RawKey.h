#pragma once

#include "platform/database/DerivedKey.h"

#include <QByteArray>
#include <QString>

struct sqlite3;

// The key of an encrypted file in the form that the engine takes without deriving it: x'<64 hex digits of the key><32
// of the salt>'. Deriving costs some 30 milliseconds, so it is done once for each salt in a process, and not at all for
// the salt of `known`; the file is an ordinary one that opens with the passphrase too.
//
// The salt is the first 16 bytes of the file that the engine has open. Throws EngineFailure when it has not that many.
QByteArray RawKey(sqlite3* engine, const QString& passphrase, const DerivedKey& known = {});

QByteArray RawKey(const DerivedKey& derived);
