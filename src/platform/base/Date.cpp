#include "platform/base/Date.h"

#include <QRegularExpression>

namespace {

QDate FirstDay() {
    return {1904, 1, 1};
}

QDate ReadSQLDate(const QString& text) {
    static const QRegularExpression form(QStringLiteral("^\\s*([0-9]{1,4})-([0-9]{1,2})-([0-9]{1,2})\\s*$"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch()) {
        return {};
    }
    return {match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt()};
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

QString Date::SQLDate() const {
    return day_.toString(QStringLiteral("yyyy-MM-dd"));
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
