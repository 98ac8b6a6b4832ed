#include "recipes/NameCompletion.h"

#include "platform/base/Text.h"

#include <algorithm>

namespace {

int FirstMatch(const QStringList& names, const QString& beginning) {
    const auto found =
        std::find_if(names.begin(), names.end(), [&](const QString& name) { return InStr(0, name, beginning) == 1; });
    return found == names.end() ? -1 : static_cast<int>(found - names.begin());
}

} // namespace

QString CompletedName(const QStringList& names, const QString& text) {
    const int match = FirstMatch(names, text);
    return match < 0 ? text : names[match];
}

QString NextName(const QStringList& names, const QString& text) {
    const int match = FirstMatch(names, text);
    return match < 0 || match == names.size() - 1 ? text : names[match + 1];
}

QString PreviousName(const QStringList& names, const QString& text) {
    const int match = FirstMatch(names, text);
    return match < 1 ? text : names[match - 1];
}
