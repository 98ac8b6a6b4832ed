#include "platform/database/RawKey.h"

#include "platform/database/EngineFailure.h"

#include <QFile>

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

QByteArray ReadSalt(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw EngineFailure(SQLITE_CANTOPEN);
    }
    QByteArray salt = file.read(SaltLength);
    if (salt.size() != SaltLength) {
        throw EngineFailure(SQLITE_NOTADB);
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

QByteArray RawKey(const QString& path, const QString& passphrase, const DerivedKey& known) {
    // All database work is done on the one thread of the program.
    static std::map<std::pair<QByteArray, QByteArray>, QByteArray> derivedKeys;
    const std::pair source(passphrase.toUtf8(), ReadSalt(path));
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
