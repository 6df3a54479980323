#pragma once

#include <QString>

// The checks of a special run's period, on the texts of its fields. Dates are "yyyymmdd", times
// "hhmmss"; the clock is the console's Clock.
namespace RunEntries {

// Numeric by the broad test, at least 8 characters, a date when read as month/day/year from
// characters 5-6, the last two and the first four, and not after today compared as text.
bool isValidDate(const QString& date);

// At least 6 characters, numeric by the broad test, hours below 25 (24 passes), minutes and
// seconds below 60; compared with the clock only when `date` is today. A text that passes the
// numeric test but whose pieces don't convert ("1e+002") throws RuntimeError 13.
bool isValidTime(const QString& time, const QString& date);

// Today as "yyyymmdd" and the time of day as "hhmmss".
QString today();
QString timeOfDay();

} // namespace RunEntries
