#include "date_text.h"

#include "text.h"

#include <QRegularExpression>

namespace {

int twoDigitYear(int year)
{
    return year < 30 ? 2000 + year : 1900 + year;
}

QDate recogniseDate(const QString& first, const QString& second, const QString& yearText)
{
    int year = yearText.toInt();
    if (yearText.size() == 2)
        year = twoDigitYear(year);
    else if (year < 100)
        return {};
    const int a = first.toInt();
    const int b = second.toInt();
    // Month first; a first field that can only be a day turns the order round.
    if (a > 12 && b >= 1 && b <= 12)
        return QDate::isValid(year, b, a) ? QDate(year, b, a) : QDate();
    return QDate::isValid(year, a, b) ? QDate(year, a, b) : QDate();
}

QTime recogniseTime(const QString& h, const QString& m, const QString& s, const QString& meridiem)
{
    int hour = h.toInt();
    const int minute = m.isEmpty() ? 0 : m.toInt();
    const int second = s.isEmpty() ? 0 : s.toInt();
    if (!meridiem.isEmpty()) {
        if (hour < 1 || hour > 12)
            return {};
        hour %= 12;
        if (meridiem.compare(QLatin1String("pm"), Qt::CaseInsensitive) == 0)
            hour += 12;
    } else if (m.isEmpty()) {
        return {}; // a lone number is no time
    }
    return QTime::isValid(hour, minute, second) ? QTime(hour, minute, second) : QTime();
}

} // namespace

RecognisedDateTime recogniseDateTime(const QString& text)
{
    // Digits are ASCII only: \d would also take the digits of other scripts.
    static const QRegularExpression datePattern(
        QStringLiteral("^([0-9]{1,2})([/-])([0-9]{1,2})\\2([0-9]{4}|[0-9]{2})$"));
    static const QRegularExpression timePattern(
        QStringLiteral("^([0-9]{1,2})(?::([0-9]{1,2})(?::([0-9]{1,2}))?)?(?: *([aApP][mM]))?$"));

    const QString trimmed = Text::Trim(text);
    if (trimmed.isEmpty())
        return {};

    // A date holds no blank, so the first blank ends it; a time alone may hold one ("1:30 PM").
    const qsizetype blank = trimmed.indexOf(u' ');
    const auto date = datePattern.match(blank < 0 ? trimmed : trimmed.left(blank));
    const QString timePart = !date.hasMatch() ? trimmed : blank < 0 ? QString() : Text::LTrim(trimmed.mid(blank));

    RecognisedDateTime result;
    if (date.hasMatch()) {
        result.date = recogniseDate(date.captured(1), date.captured(3), date.captured(4));
        if (!result.date.isValid())
            return {};
        result.hasDate = true;
    }
    if (!timePart.isEmpty()) {
        const auto time = timePattern.match(timePart);
        if (!time.hasMatch())
            return {};
        result.time = recogniseTime(time.captured(1), time.captured(2), time.captured(3), time.captured(4));
        if (!result.time.isValid())
            return {};
        result.hasTime = true;
    }
    result.ok = true;
    return result;
}

bool isDateText(const QString& text)
{
    return recogniseDateTime(text).ok;
}
