#include "store/LibraryKey.h"

QString DatabaseKey() {
    return QStringLiteral("MerryMead246");
}

// A salt guards passphrases that people choose; this one stands in every copy of the program. So the salt need not
// change with the library, and a file made by an older version has it too.
DerivedKey LibraryKey() {
    return {QByteArrayLiteral("Pourbook library"),
            QByteArray::fromHex("c734c9b7e53d856466be9caeca0d48b8b89ffa7aa1425910f9cad4706c4683c3")};
}
