#pragma once

#include <QByteArray>

// What deriving gives for one passphrase and one salt, in the file format of Database.h: PBKDF2-HMAC-SHA1, 64,000
// rounds. Both empty when nothing is known.
struct DerivedKey {
    QByteArray salt; // 16 bytes
    QByteArray key;  // 32 bytes
};
