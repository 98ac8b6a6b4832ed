#include "library/Sections.h"

namespace {

void AddName(const SourceLine& line, const QString& name, const QString& what, QStringList& names, NameIndex& index,
             QList<LibraryError>& errors) {
    if (line.indent > 0) {
        errors.append({line.place, QStringLiteral("a %1 name stands at the margin").arg(what)});
    } else if (!index.Add(name)) {
        errors.append({line.place, QStringLiteral("duplicate %1 '%2'").arg(what, name)});
    } else {
        names.append(name);
    }
}

} // namespace

void ReadNames(const LibraryFile& file, const QString& what, QStringList& names, NameIndex& index,
               QList<LibraryError>& errors) {
    for (const SourceLine& line : SourceLines(file)) {
        AddName(line, line.text, what, names, index, errors);
    }
}

void ReadUnits(const LibraryFile& file, LibraryReading& reading, Vocabulary& vocabulary) {
    for (const SourceLine& line : SourceLines(file)) {
        const bool withoutNumber = line.text.startsWith(QLatin1String("0 "));
        const QString name = withoutNumber ? line.text.mid(2) : line.text;
        if (name.contains(u' ') || name.at(0).isDigit()) {
            reading.errors.append({line.place, QStringLiteral("a unit is one word, not '%1'").arg(name)});
            continue;
        }
        AddName(line, name, QStringLiteral("unit"), reading.library.units, vocabulary.units, reading.errors);
        if (withoutNumber) {
            vocabulary.unitsWithoutNumber.insert(vocabulary.units.Find(name));
        }
    }
}

void ReadStarterBar(const LibraryFile& file, LibraryReading& reading, const Vocabulary& vocabulary) {
    for (const SourceLine& line : SourceLines(file)) {
        const int ingredient = vocabulary.ingredients.Find(line.text);
        if (ingredient < 0) {
            reading.errors.append({line.place, QStringLiteral("unknown ingredient '%1'").arg(line.text)});
        } else {
            reading.library.starterBar.append(ingredient);
        }
    }
}
