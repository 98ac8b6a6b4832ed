#include "library/Sections.h"

#include <QRegularExpression>

namespace {

// The recipe panel knows the digits behind the point as a fraction or not at all; "0.50" would be shown as ".50".
bool IsShownRightly(const QString& quantity) {
    static const QRegularExpression form(QStringLiteral("\\A([1-9][0-9]*|(0|[1-9][0-9]*)\\.(25|5|75|33|66|1|2))\\z"));
    return form.match(quantity).hasMatch();
}

QString TakeWord(QString& text) {
    const qsizetype end = text.indexOf(u' ');
    QString word = end < 0 ? text : text.left(end);
    text = end < 0 ? QString() : text.mid(end + 1);
    return word;
}

// Takes the unit off the front of `text`, unless all of it is an ingredient.
int TakeUnit(QString& text, const Vocabulary& vocabulary) {
    if (vocabulary.ingredients.Find(text) >= 0) {
        return -1;
    }
    QString rest = text;
    const int unit = vocabulary.units.Find(TakeWord(rest));
    if (unit >= 0) {
        text = rest;
    }
    return unit;
}

QString UnknownIngredient(const QString& text, const Vocabulary& vocabulary) {
    QString rest = text;
    const QString word = TakeWord(rest);
    if (vocabulary.ingredients.Find(rest) >= 0) {
        return QStringLiteral("unknown unit '%1'").arg(word);
    }
    return text.isEmpty() ? QStringLiteral("the ingredient is missing")
                          : QStringLiteral("unknown ingredient '%1'").arg(text);
}

QString QuantityFault(const RecipeRow& row, bool hasNumber, const Vocabulary& vocabulary) {
    if (hasNumber && !IsShownRightly(row.quantity)) {
        return QStringLiteral("quantity '%1' cannot be shown: use a whole number, or .25 .5 .75 .33 .66 .1 .2")
            .arg(row.quantity);
    }
    if (row.unit >= 0 && hasNumber == vocabulary.unitsWithoutNumber.contains(row.unit)) {
        return hasNumber ? QStringLiteral("this unit stands without a number")
                         : QStringLiteral("the number is missing before the unit");
    }
    return {};
}

} // namespace

bool ReadRecipeRow(const SourceLine& line, const Vocabulary& vocabulary, RecipeRow& row, QList<LibraryError>& errors) {
    QString text = line.text;
    row.required = !text.startsWith(u'?');
    if (!row.required) {
        text = text.mid(1).trimmed();
    }
    const qsizetype comma = text.indexOf(u',');
    if (comma >= 0) {
        row.preparation = text.mid(comma + 1).trimmed();
        text = text.left(comma).trimmed();
    }
    const bool hasNumber = !text.isEmpty() && (text.at(0).isDigit() || text.at(0) == u'.');
    row.quantity = hasNumber ? TakeWord(text) : QStringLiteral("0");
    row.unit = TakeUnit(text, vocabulary);
    row.ingredient = vocabulary.ingredients.Find(text);

    QString fault = QuantityFault(row, hasNumber, vocabulary);
    if (fault.isEmpty() && row.ingredient < 0) {
        fault = UnknownIngredient(text, vocabulary);
    }
    if (!fault.isEmpty()) {
        errors.append({line.place, fault});
    }
    return fault.isEmpty();
}
