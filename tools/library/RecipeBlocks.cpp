#include "library/Sections.h"

#include <algorithm>

namespace {

// Reads the lines of one file and keeps the recipe that is being read. A recipe is complete when the next name or
// the end of the file comes.
class RecipeReader {
public:
    RecipeReader(LibraryReading& reading, const Vocabulary& vocabulary, NameIndex& names)
        : reading_(reading), vocabulary_(vocabulary), names_(names) {}

    void Read(const SourceLine& line) {
        if (line.indent == 0) {
            Finish();
            Begin(line);
        } else if (!open_) {
            Fail(line.place, QStringLiteral("a recipe begins with its name at the margin"));
        } else if (line.text.startsWith(u'>')) {
            ReadInstructions(line);
        } else if (!hasKind_) {
            ReadKind(line);
        } else {
            ReadRow(line);
        }
    }

    void Finish() {
        if (!open_) {
            return;
        }
        open_ = false;
        const auto required = [](const RecipeRow& row) { return row.required; };
        if (!rowsFailed_ && std::none_of(recipe_.rows.cbegin(), recipe_.rows.cend(), required)) {
            Fail(recipe_.place, QStringLiteral("'%1' has no required ingredient").arg(recipe_.name));
        }
        if (recipe_.instructions.isEmpty()) {
            Fail(recipe_.place, QStringLiteral("'%1' has no instructions").arg(recipe_.name));
        } else if (recipe_.instructions.size() > longestInstructions) {
            Fail(recipe_.place, QStringLiteral("the instructions of '%1' have %2 characters, %3 fit in")
                                    .arg(recipe_.name)
                                    .arg(recipe_.instructions.size())
                                    .arg(longestInstructions));
        }
        reading_.library.recipes.append(recipe_);
    }

private:
    void Fail(const TextPlace& place, const QString& message) { reading_.errors.append({place, message}); }

    void Begin(const SourceLine& line) {
        recipe_ = Recipe();
        recipe_.name = line.text;
        recipe_.place = line.place;
        open_ = true;
        hasKind_ = false;
        rowsFailed_ = false;
        if (!names_.Add(line.text)) {
            Fail(line.place, QStringLiteral("duplicate recipe '%1'").arg(line.text));
        }
    }

    void ReadKind(const SourceLine& line) {
        hasKind_ = true;
        const QStringList parts = line.text.split(u',');
        if (parts.size() != 2) {
            Fail(line.place, QStringLiteral("the line below the name has the type, a comma and the glass"));
            return;
        }
        const QString type = parts.at(0).trimmed();
        const QString glass = parts.at(1).trimmed();
        recipe_.type = vocabulary_.types.Find(type);
        recipe_.glass = vocabulary_.glasses.Find(glass);
        if (recipe_.type < 0) {
            Fail(line.place, QStringLiteral("unknown type '%1'").arg(type));
        }
        if (recipe_.glass < 0) {
            Fail(line.place, QStringLiteral("unknown glass '%1'").arg(glass));
        }
    }

    void ReadRow(const SourceLine& line) {
        if (!recipe_.instructions.isEmpty()) {
            Fail(line.place, QStringLiteral("an ingredient after the instructions; or is the '>' missing?"));
            return;
        }
        RecipeRow row;
        if (!ReadRecipeRow(line, vocabulary_, row, reading_.errors)) {
            rowsFailed_ = true;
            return;
        }
        const auto same = [&row](const RecipeRow& other) { return other.ingredient == row.ingredient; };
        if (std::any_of(recipe_.rows.cbegin(), recipe_.rows.cend(), same)) {
            Fail(line.place, QStringLiteral("this ingredient is in the recipe already"));
        }
        recipe_.rows.append(row);
    }

    void ReadInstructions(const SourceLine& line) {
        const QString words = line.text.mid(1).trimmed();
        recipe_.instructions = QString(recipe_.instructions + u' ' + words).trimmed();
    }

    LibraryReading& reading_;
    const Vocabulary& vocabulary_;
    NameIndex& names_;
    Recipe recipe_;
    bool open_ = false;
    bool hasKind_ = false;
    bool rowsFailed_ = false;
};

} // namespace

void ReadRecipes(const LibraryFile& file, LibraryReading& reading, const Vocabulary& vocabulary,
                 NameIndex& recipeNames) {
    RecipeReader reader(reading, vocabulary, recipeNames);
    for (const SourceLine& line : SourceLines(file)) {
        reader.Read(line);
    }
    reader.Finish();
}
