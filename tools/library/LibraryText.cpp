#include "library/LibraryText.h"

#include "library/Sections.h"

#include <algorithm>

namespace {

LibraryFile FileNamed(const QString& name, const QList<LibraryFile>& files, QList<LibraryError>& errors) {
    const auto found =
        std::find_if(files.cbegin(), files.cend(), [&name](const LibraryFile& file) { return file.name == name; });
    if (found == files.cend()) {
        errors.append({{name, 0}, QStringLiteral("the file is missing")});
        return {name, QString()};
    }
    return *found;
}

} // namespace

QString LibraryError::Text() const {
    const QString where = place.line > 0 ? QStringLiteral("%1:%2").arg(place.file).arg(place.line) : place.file;
    return where + QStringLiteral(": ") + message;
}

LibraryReading ReadLibrary(const QList<LibraryFile>& files) {
    LibraryReading reading;
    Vocabulary vocabulary;
    QList<LibraryError>& errors = reading.errors;
    const auto file = [&](const char* name) { return FileNamed(QString::fromLatin1(name), files, errors); };

    ReadNames(file("types.txt"), QStringLiteral("type"), reading.library.types, vocabulary.types, errors);
    ReadNames(file("glasses.txt"), QStringLiteral("glass"), reading.library.glasses, vocabulary.glasses, errors);
    ReadUnits(file("units.txt"), reading, vocabulary);
    ReadIngredientTree(file("ingredients.txt"), reading, vocabulary);
    ReadStarterBar(file("starter-bar.txt"), reading, vocabulary);

    NameIndex recipeNames;
    for (const LibraryFile& recipes : files) {
        if (recipes.name.startsWith(QLatin1String("recipes/"))) {
            ReadRecipes(recipes, reading, vocabulary, recipeNames);
        }
    }
    if (reading.library.recipes.isEmpty()) {
        errors.append({{QStringLiteral("recipes"), 0}, QStringLiteral("there is no recipe")});
    }
    return reading;
}
