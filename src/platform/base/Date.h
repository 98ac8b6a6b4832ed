#pragma once

#include <QDateTime>
#include <QString>

// A moment of the local calendar. A new one holds the present moment. There is no invalid date.
class Date {
public:
    Date();

    int Year() const;
    int Month() const; // 1 to 12
    int Day() const;   // 1 to 31

    // Each leaves the other parts and the time of day alone. A day or month that the calendar does not have
    // rolls over: day 31 set in April is May 1, month 13 is January of the next year.
    void SetYear(int year);
    void SetMonth(int month);
    void SetDay(int day);

    // Takes year, month and day joined by "-", padded with zeros or not, with white space around it allowed, and
    // sets the time of day to midnight. Any other text, the empty one of a NULL column too, sets 1904-01-01: a
    // date so old that whatever is to be done at intervals since then is due.
    void SetSQLDate(const QString& text);

    // Seconds since 1904-01-01 00:00 by the local clock's face, with a fraction. Every day counts 86,400, so that
    // a change to summer time does not show in the difference of two dates.
    double TotalSeconds() const;

private:
    void SetParts(int year, int month, int day);

    QDate day_;
    QTime time_;
};
