#include "browser/QuantityText.h"

#include "platform/base/Text.h"

namespace {

struct Fraction {
    int digits;
    const char* text;
};

constexpr Fraction fractions[] = {
    {25, "1/4"}, {5, "1/2"}, {75, "3/4"}, {33, "1/3"}, {66, "2/3"}, {1, "1/10"}, {2, "1/5"},
};

QString FractionText(int digits) {
    for (const Fraction& fraction : fractions) {
        if (fraction.digits == digits) {
            return QString::fromLatin1(fraction.text);
        }
    }
    return {};
}

} // namespace

QString QuantityText(const QString& quantity, const QString& unit) {
    if (quantity == QLatin1String("0")) {
        return unit;
    }
    const QString blank = QStringLiteral(" ");
    const int point = InStr(quantity, QStringLiteral("."));
    if (point == 0) {
        return quantity + blank + unit;
    }
    const int whole = CLong(Left(quantity, point));
    const int digits = CLong(Mid(quantity, point + 1));
    const QString prefix = whole > 0 ? CStr(whole) + blank : QString();
    const QString fraction = FractionText(digits);
    if (!fraction.isEmpty()) {
        return prefix + fraction + blank + unit;
    }
    return Left(prefix, Len(prefix) - 1) + QStringLiteral(".") + CStr(digits) + blank + unit;
}
