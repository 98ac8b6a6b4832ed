// A stored quantity, and behind the first line end its unit.
#include "Fuzz.h"
#include "browser/QuantityText.h"
#include "platform/base/Text.h"

#include <QRegularExpression>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text = TextOf(data, size);
    const QString quantity = text.section('\n', 0, 0);
    const QString unit = text.section('\n', 1);
    const QString shown = QuantityText(quantity, unit);
    Expect(shown.endsWith(unit), "the unit stands last");

    const QString number = shown.chopped(unit.size());
    if (!quantity.contains('.')) {
        Expect(number == (quantity == "0" ? QString() : quantity + ' '), "a number without a point stays as it is");
        return 0;
    }
    static const QRegularExpression form(
        "\\A(([1-9][0-9]{0,9} )?[1-3]/(2|3|4|5|10)|([1-9][0-9]{0,9})?\\.-?[0-9]{1,10}) \\z");
    Expect(form.match(number).hasMatch(), "digits with a point show as a fraction or a short decimal");
    // Only digits count, so what stands behind them changes nothing.
    Expect(QuantityText(quantity + 'x', unit) == shown, "the digits decide");
    // A recipe of the user's holds only numbers, and these never show a sign in the middle.
    Expect(!IsNumeric(quantity) || !number.contains('-'), "a number shows without a sign");
    return 0;
}
