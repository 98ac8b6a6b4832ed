#pragma once

#include "platform/database/DerivedKey.h"

#include <QByteArray>
#include <QString>

// The key of an encrypted file in the form that the engine takes without deriving it: x'<64 hex digits of the key><32
// of the salt>'. Deriving costs some 30 milliseconds, so it is done once for each salt in a process, and not at all for
// the salt of `known`; the file is an ordinary one that opens with the passphrase too.
//
// The salt is the first 16 bytes of the file. Throws EngineFailure when the file has not that many.
QByteArray RawKey(const QString& path, const QString& passphrase, const DerivedKey& known = {});

QByteArray RawKey(const DerivedKey& derived);
