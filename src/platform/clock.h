#pragma once

#include <QDateTime>

#include <functional>

// The console's one source of the time of day, so that tests can set it.
namespace Clock {

QDateTime now(); // local time
double secondsSinceMidnight(); // with the milliseconds as a fraction

void setSource(std::function<QDateTime()> source);
void setFixed(const QDateTime& moment);
void reset(); // back to the system clock

} // namespace Clock
