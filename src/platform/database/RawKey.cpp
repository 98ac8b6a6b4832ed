#include "platform/database/RawKey.h"

#include "platform/database/EngineFailure.h"

#include <openssl/evp.h>
#include <sqlite3.h>

#include <array>
#include <map>
#include <utility>

namespace {

// The parameters of the SQLCipher 3 format.
constexpr int Rounds = 64000;
constexpr int SaltLength = 16;
constexpr int KeyLength = 32;

// Through the engine's own handle: the system takes away all locks that a process has on a file as soon as the process
// closes any handle of it, also those of a connection that is open at the time.
QByteArray ReadSalt(sqlite3* engine) {
    sqlite3_file* file = nullptr;
    const int code = sqlite3_file_control(engine, "main", SQLITE_FCNTL_FILE_POINTER, &file);
    if (code != SQLITE_OK) {
        throw EngineFailure(code);
    }
    QByteArray salt(SaltLength, '\0');
    const int read = file->pMethods->xRead(file, salt.data(), SaltLength, 0);
    if (read != SQLITE_OK) {
        throw EngineFailure(read == SQLITE_IOERR_SHORT_READ ? SQLITE_NOTADB : read);
    }
    return salt;
}

QByteArray Derive(const QByteArray& passphrase, const QByteArray& salt) {
    std::array<unsigned char, KeyLength> key{};
    if (PKCS5_PBKDF2_HMAC_SHA1(passphrase.constData(), int(passphrase.size()),
                               reinterpret_cast<const unsigned char*>(salt.constData()), int(salt.size()), Rounds,
                               KeyLength, key.data()) != 1) {
        throw EngineFailure(SQLITE_NOMEM);
    }
    return QByteArray(reinterpret_cast<const char*>(key.data()), KeyLength);
}

} // namespace

QByteArray RawKey(sqlite3* engine, const QString& passphrase, const DerivedKey& known) {
    // All database work is done on the one thread of the program.
    static std::map<std::pair<QByteArray, QByteArray>, QByteArray> derivedKeys;
    const std::pair source(passphrase.toUtf8(), ReadSalt(engine));
    if (source.second == known.salt) {
        return RawKey(known);
    }
    auto derived = derivedKeys.find(source);
    if (derived == derivedKeys.end()) {
        derived = derivedKeys.emplace(source, Derive(source.first, source.second)).first;
    }
    return RawKey({source.second, derived->second});
}

QByteArray RawKey(const DerivedKey& derived) {
    return "x'" + derived.key.toHex() + derived.salt.toHex() + '\'';
}
