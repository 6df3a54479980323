#include "clock.h"

namespace {

std::function<QDateTime()>& source()
{
    static std::function<QDateTime()> current;
    return current;
}

} // namespace

namespace Clock {

QDateTime now()
{
    return source() ? source()().toLocalTime() : QDateTime::currentDateTime();
}

double secondsSinceMidnight()
{
    return now().time().msecsSinceStartOfDay() / 1000.0;
}

void setSource(std::function<QDateTime()> newSource)
{
    source() = std::move(newSource);
}

void setFixed(const QDateTime& moment)
{
    setSource([moment] { return moment; });
}

void reset()
{
    source() = nullptr;
}

} // namespace Clock
