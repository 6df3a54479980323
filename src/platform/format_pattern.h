#pragma once

#include <QDateTime>
#include <QString>

// The format patterns the console applies to texts and to the clock.
//
// Number patterns are made of "#", "0", "," and at most one ".": "####", "###", "#####", "00",
// "000", "#,00", "#.00". A "0" is a digit always shown, a "#" one shown when it counts, a ","
// anywhere before the point groups the thousands. The value is taken to 15 significant digits and
// rounded half away from zero to the places the pattern shows (2.5 -> "3" through "####"), unlike
// the conversions to integers, which round half to even. A value that rounds to zero has no sign.
// Point and group separator are always "." and ",", whatever the locale: the results are stored.
//
// Date patterns are built from the tokens yyyy, yy, mm/m, dd/d, hh/h, nn/n, ss/s in any case;
// mm is the minute right after an hour token or right before a seconds token. Other characters
// stand as they are. Used as "yyyymmdd", "hhmmss", "hh:mm".
namespace FormatPattern {

// A numeric text is formatted as its number, or as a date serial (days since 1899-12-30, the
// fraction the time of day) under a date pattern; a date or time text (see date_text.h) as its
// date and time, or as its serial under a number pattern. Anything else, a number beyond the
// range of a double, a serial beyond the years 100-9999 or a pattern of neither kind returns
// the text unchanged. Never throws.
QString formatText(const QString& value, const QString& pattern);

// A number through a number pattern; a pattern that is none gives the number as decimal text.
QString formatNumber(double value, const QString& pattern);

// A moment through a date pattern; seconds are cut, not rounded, so "now" never reads ahead.
// A number pattern formats the date serial. An invalid moment gives the empty text.
QString formatDateTime(const QDateTime& value, const QString& pattern);

} // namespace FormatPattern
