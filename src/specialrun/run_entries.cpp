#include "run_entries.h"

#include "platform/clock.h"
#include "platform/date_text.h"
#include "platform/format_pattern.h"
#include "platform/numeric.h"
#include "platform/text.h"

namespace RunEntries {

QString today()
{
    return FormatPattern::formatDateTime(Clock::now(), QStringLiteral("yyyymmdd"));
}

QString timeOfDay()
{
    return FormatPattern::formatDateTime(Clock::now(), QStringLiteral("hhmmss"));
}

bool isValidDate(const QString& date)
{
    if (!Numeric::isNumeric(date))
        return false;
    if (date.size() < 8)
        return false;
    const QString monthDayYear = Text::Mid(date, 5, 2) + QLatin1Char('/') + Text::Right(date, 2) + QLatin1Char('/')
        + Text::Left(date, 4);
    if (!isDateText(monthDayYear))
        return false;
    return date <= today();
}

bool isValidTime(const QString& time, const QString& date)
{
    if (time.size() < 6)
        return false;
    if (!Numeric::isNumeric(time))
        return false;
    if (Numeric::toInt16(Text::Left(time, 2)) >= 25)
        return false;
    if (Numeric::toInt16(Text::Mid(time, 3, 2)) >= 60)
        return false;
    if (Numeric::toInt16(Text::Right(time, 2)) >= 60)
        return false;
    // only today's times can lie in the future
    if (date == today())
        return Numeric::toInt32(time) <= Numeric::toInt32(timeOfDay());
    return true;
}

} // namespace RunEntries
