#include "store/Succeeded.h"

#include "platform/ui/MsgBox.h"

bool Succeeded(const REALSQLDatabase& db, const QString& words) {
    if (db.Error()) {
        MsgBox(words + db.ErrorMessage());
    }
    return !db.Error();
}
