// The files of a recipe library. A line "== NAME" begins a file; those that are missing have a small content of their
// own, so that an input can be one recipe.
#include "Fuzz.h"
#include "browser/QuantityText.h"
#include "library/LibraryText.h"

#include <algorithm>
#include <map>
#include <set>

namespace {

using Files = std::map<QString, QString>;

Files FilesOf(const QString& text) {
    Files files = {
        {"types.txt", "Sour\n"},      {"glasses.txt", "Cocktail\n"},
        {"units.txt", "oz\n0 top\n"}, {"ingredients.txt", "Rum\n    White Rum\nGin\nSoda Water\n"},
        {"starter-bar.txt", "Gin\n"},
    };
    QString name = "recipes/a.txt";
    files[name];
    std::set<QString> begun;
    for (const QString& line : text.split('\n')) {
        if (line.startsWith("== ")) {
            name = line.mid(3);
        } else {
            QString& content = files[name];
            content = (begun.insert(name).second ? QString() : content) + line + '\n';
        }
    }
    return files;
}

LibraryReading Read(const Files& files) {
    QList<LibraryFile> list;
    for (const auto& [name, text] : files) {
        list.append({name, text});
    }
    return ReadLibrary(list);
}

// The library as its author would write it.
Files Written(const Library& library) {
    Files files = {{"types.txt", library.types.join('\n')}, {"glasses.txt", library.glasses.join('\n')}};
    std::set<int> withoutNumber;
    QString recipes;
    for (const Recipe& recipe : library.recipes) {
        recipes += recipe.name + "\n " + library.types.at(recipe.type) + ", " + library.glasses.at(recipe.glass) + '\n';
        for (const RecipeRow& row : recipe.rows) {
            recipes += row.required ? " " : " ? ";
            recipes += row.quantity == "0" ? QString() : row.quantity + ' ';
            recipes += row.unit < 0 ? QString() : library.units[row.unit] + ' ';
            recipes += library.ingredients[row.ingredient].name + ", " + row.preparation + '\n';
            if (row.quantity == "0") {
                withoutNumber.insert(row.unit);
            }
        }
        recipes += " > " + recipe.instructions + '\n';
    }
    for (int unit = 0; unit < library.units.size(); ++unit) {
        files["units.txt"] += (withoutNumber.contains(unit) ? "0 " : "") + library.units[unit] + '\n';
    }
    for (const LibraryIngredient& ingredient : library.ingredients) {
        files["ingredients.txt"] += (ingredient.parent < 0 ? "" : "    ") + ingredient.name + '\n';
    }
    for (const int ingredient : library.starterBar) {
        files["starter-bar.txt"] += library.ingredients[ingredient].name + '\n';
    }
    files["recipes/a.txt"] = recipes;
    return files;
}

void ExpectSound(const Library& library) {
    for (int place = 0; place < library.ingredients.size(); ++place) {
        const int parent = library.ingredients[place].parent;
        Expect(parent >= -1 && parent < place, "a kind stands below its ingredient");
        Expect(parent < 0 || library.ingredients[parent].parent < 0, "there are two levels");
    }
    for (const Recipe& recipe : library.recipes) {
        Expect(!recipe.instructions.isEmpty() && recipe.instructions.size() <= longestInstructions, "they fit in");
        Expect(std::ranges::any_of(recipe.rows, &RecipeRow::required), "something is required");
        for (const RecipeRow& row : recipe.rows) {
            // A fraction or a whole number: the digits of the file can be read off the panel.
            Expect(QuantityText(row.quantity, "") == "" || !QuantityText(row.quantity, "").contains('.'),
                   "it is shown");
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const LibraryReading reading = Read(FilesOf(TextOf(data, size)));
    for (const LibraryError& error : reading.errors) {
        Expect(error.Text().size() > error.message.size(), "an error says where");
    }
    if (reading.errors.isEmpty()) {
        ExpectSound(reading.library);
        const Files written = Written(reading.library);
        const LibraryReading again = Read(written);
        Expect(again.errors.isEmpty() && Written(again.library) == written, "a library that is written reads the same");
    }
    return 0;
}
