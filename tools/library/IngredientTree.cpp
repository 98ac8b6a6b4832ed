#include "library/Sections.h"

namespace {

constexpr int kindIndent = 4;

QString Fault(const SourceLine& line, int general) {
    if (line.indent != 0 && line.indent != kindIndent) {
        return line.indent > kindIndent
                   ? QStringLiteral("'%1' is indented too far: a kind cannot have kinds of its own").arg(line.text)
                   : QStringLiteral("indent '%1' by four blanks").arg(line.text);
    }
    if (line.indent == kindIndent && general < 0) {
        return QStringLiteral("'%1' has no general ingredient above it").arg(line.text);
    }
    // The drink list shows the ingredients of a drink with commas between them, and a recipe line has a comma
    // before the preparation.
    if (line.text.contains(u',')) {
        return QStringLiteral("an ingredient name cannot hold a comma: '%1'").arg(line.text);
    }
    const QChar first = line.text.at(0);
    if (first.isDigit() || first == u'?' || first == u'>') {
        return QStringLiteral("an ingredient name begins with a letter: '%1'").arg(line.text);
    }
    return {};
}

} // namespace

void ReadIngredientTree(const LibraryFile& file, LibraryReading& reading, Vocabulary& vocabulary) {
    QList<LibraryIngredient>& ingredients = reading.library.ingredients;
    int general = -1;
    for (const SourceLine& line : SourceLines(file)) {
        const QString fault = Fault(line, general);
        if (!fault.isEmpty()) {
            reading.errors.append({line.place, fault});
        } else if (!vocabulary.ingredients.Add(line.text)) {
            const int first = vocabulary.ingredients.Find(line.text);
            reading.errors.append({line.place, QStringLiteral("duplicate ingredient '%1', first in line %2")
                                                   .arg(line.text)
                                                   .arg(ingredients.at(first).place.line)});
        } else {
            const bool isKind = line.indent > 0;
            ingredients.append({line.text, isKind ? general : -1, line.place});
            general = isKind ? general : static_cast<int>(ingredients.size()) - 1;
        }
    }
}
