#include "platform/base/Date.h"

#include <QStringList>

#include <algorithm>

namespace {

QDate FirstDay() {
    return {1904, 1, 1};
}

bool IsNumber(const QString& text, int mostDigits) {
    return !text.isEmpty() && text.length() <= mostDigits &&
           std::all_of(text.begin(), text.end(), [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
}

// A regular expression would be the only one of a start, and its library half a megabyte.
QDate ReadSQLDate(const QString& text) {
    const QStringList parts = text.trimmed().split(u'-');
    if (parts.size() != 3 || !IsNumber(parts[0], 4) || !IsNumber(parts[1], 2) || !IsNumber(parts[2], 2)) {
        return {};
    }
    return {parts[0].toInt(), parts[1].toInt(), parts[2].toInt()};
}

} // namespace

Date::Date() {
    const QDateTime now = QDateTime::currentDateTime();
    day_ = now.date();
    time_ = now.time();
}

int Date::Year() const {
    return day_.year();
}

int Date::Month() const {
    return day_.month();
}

int Date::Day() const {
    return day_.day();
}

void Date::SetYear(int year) {
    SetParts(year, Month(), Day());
}

void Date::SetMonth(int month) {
    SetParts(Year(), month, Day());
}

void Date::SetDay(int day) {
    SetParts(Year(), Month(), day);
}

void Date::SetSQLDate(const QString& text) {
    const QDate day = ReadSQLDate(text);
    day_ = day.isValid() ? day : FirstDay();
    time_ = QTime(0, 0);
}

double Date::TotalSeconds() const {
    return 86400.0 * double(FirstDay().daysTo(day_)) + time_.msecsSinceStartOfDay() / 1000.0;
}

void Date::SetParts(int year, int month, int day) {
    const QDate rolled = QDate(year, 1, 1).addMonths(month - 1).addDays(day - 1);
    day_ = rolled.isValid() ? rolled : FirstDay();
}
