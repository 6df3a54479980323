#pragma once

#include <QDate>
#include <QString>
#include <QTime>

// A date and/or time of day read from text as a user types it. What is accepted, exactly:
//   time   H:M or H:M:S, one or two digits a field, hours 0-23, minutes and seconds 0-59;
//          or H, H:M, H:M:S with AM/PM (any case, blank before it optional), hours 1-12:
//          "12:00 AM" is midnight, "12 PM" noon
//   date   M/D/Y, or D/M/Y when the first field is over 12 and the second a month; "/" or "-",
//          the same both times; M and D one or two digits, Y two digits (00-29 -> 20xx,
//          30-99 -> 19xx) or four (100-9999); a plain calendar check with leap years
//   both   a date, one or more blanks, a time
// Outer blanks are allowed; anything else is refused.
struct RecognisedDateTime
{
    bool ok = false;
    bool hasDate = false;
    bool hasTime = false;
    QDate date; // null without a date
    QTime time = QTime(0, 0); // midnight without a time
};

RecognisedDateTime recogniseDateTime(const QString& text);
bool isDateText(const QString& text);
