#include "format_pattern.h"

#include "date_text.h"
#include "numeric.h"
#include "runtime_error.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

const QDate SerialZero(1899, 12, 30);
constexpr qint64 FirstSerialDay = -657434; // 0100-01-01
constexpr qint64 LastSerialDay = 2958465; // 9999-12-31
constexpr int SecondsPerDay = 86400;

bool isNumberPattern(const QString& pattern)
{
    static const QRegularExpression shape(QStringLiteral("^[#0,]*(\\.[#0]*)?$"));
    return shape.match(pattern).hasMatch() && (pattern.contains(u'#') || pattern.contains(u'0'));
}

bool isDatePattern(const QString& pattern)
{
    static const QRegularExpression token(QStringLiteral("[ymdhns]"), QRegularExpression::CaseInsensitiveOption);
    return token.match(pattern).hasMatch();
}

// The digits of |value| rounded half away from zero to `decimals` places, with `pointPos` of them
// before the point. Works on the 15 significant digits a double holds, so 1.005 rounds up to 1.01
// as it reads, not down as its binary value would.
QString roundedDigits(double value, qsizetype decimals, qsizetype& pointPos)
{
    const QString scientific = QString::number(std::fabs(value), 'e', 14); // d.dddddddddddddde±x
    const qsizetype e = scientific.indexOf(u'e');
    QString digits = scientific.left(1) + scientific.mid(2, e - 2);
    pointPos = scientific.mid(e + 1).toInt() + 1;
    if (pointPos < 0) {
        digits.prepend(QString(-pointPos, u'0'));
        pointPos = 0;
    }
    if (digits.size() < pointPos)
        digits.append(QString(pointPos - digits.size(), u'0'));

    const qsizetype keep = pointPos + decimals;
    if (digits.size() <= keep) {
        digits.append(QString(keep - digits.size(), u'0'));
        return digits;
    }
    const bool roundUp = digits.at(keep) >= u'5';
    digits.truncate(keep);
    if (roundUp) {
        qsizetype i = keep - 1;
        while (i >= 0 && digits.at(i) == u'9')
            digits[i--] = u'0';
        if (i < 0) {
            digits.prepend(u'1');
            ++pointPos;
        } else {
            digits[i] = QChar(char16_t(digits.at(i).unicode() + 1));
        }
    }
    return digits;
}

QString groupThousands(const QString& digits)
{
    QString grouped;
    for (qsizetype i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0)
            grouped += u',';
        grouped += digits.at(i);
    }
    return grouped;
}

QString applyNumberPattern(double value, const QString& pattern)
{
    const qsizetype point = pattern.indexOf(u'.');
    const QString integerPattern = point < 0 ? pattern : pattern.left(point);
    const QString fractionPattern = point < 0 ? QString() : pattern.mid(point + 1);

    const qsizetype firstZero = integerPattern.indexOf(u'0');
    const qsizetype minIntegerDigits
        = firstZero < 0 ? 0 : integerPattern.mid(firstZero).size() - integerPattern.mid(firstZero).count(u',');
    const qsizetype minFractionDigits = fractionPattern.lastIndexOf(u'0') + 1;

    qsizetype pointPos = 0;
    const QString digits = roundedDigits(value, fractionPattern.size(), pointPos);
    QString integerPart = digits.left(pointPos);
    QString fractionPart = digits.mid(pointPos);
    const bool isZero = std::all_of(digits.begin(), digits.end(), [](QChar c) { return c == u'0'; });

    while (!integerPart.isEmpty() && integerPart.front() == u'0')
        integerPart.remove(0, 1);
    if (integerPart.size() < minIntegerDigits)
        integerPart.prepend(QString(minIntegerDigits - integerPart.size(), u'0'));
    if (integerPattern.contains(u','))
        integerPart = groupThousands(integerPart);
    while (fractionPart.size() > minFractionDigits && fractionPart.back() == u'0')
        fractionPart.chop(1);

    QString text = (value < 0 && !isZero) ? QStringLiteral("-") : QString();
    text += integerPart;
    if (point >= 0)
        text += u'.' + fractionPart;
    return text;
}

struct DateToken
{
    QChar letter; // lower case; null for a literal
    int width = 0;
    QString literal;
};

QList<DateToken> tokenise(const QString& pattern)
{
    QList<DateToken> tokens;
    qsizetype i = 0;
    while (i < pattern.size()) {
        const QChar letter = pattern.at(i).toLower();
        qsizetype run = 1;
        while (i + run < pattern.size() && pattern.at(i + run).toLower() == letter)
            ++run;
        if (letter == u'y' && run >= 2) {
            const int width = run >= 4 ? 4 : 2;
            tokens.append({ letter, width, {} });
            i += width;
        } else if (QStringView(u"mdhns").contains(letter)) {
            const int width = run >= 2 ? 2 : 1;
            tokens.append({ letter, width, {} });
            i += width;
        } else {
            tokens.append({ {}, 0, pattern.mid(i, 1) });
            ++i;
        }
    }
    return tokens;
}

QString applyDatePattern(const QDate& date, const QTime& time, const QString& pattern)
{
    const QList<DateToken> tokens = tokenise(pattern);
    QString text;
    QChar previous;
    for (qsizetype t = 0; t < tokens.size(); ++t) {
        const DateToken& token = tokens.at(t);
        if (token.letter.isNull()) {
            text += token.literal;
            continue;
        }
        QChar next;
        for (qsizetype n = t + 1; n < tokens.size() && next.isNull(); ++n)
            next = tokens.at(n).letter;

        int number = 0;
        switch (token.letter.unicode()) {
        case u'y':
            number = token.width == 4 ? date.year() : date.year() % 100;
            break;
        case u'm':
            number = (previous == u'h' || next == u's') ? time.minute() : date.month();
            break;
        case u'd':
            number = date.day();
            break;
        case u'h':
            number = time.hour();
            break;
        case u'n':
            number = time.minute();
            break;
        case u's':
            number = time.second();
            break;
        }
        text += QString::number(number).rightJustified(token.width, u'0');
        previous = token.letter;
    }
    return text;
}

double toSerial(const QDate& date, const QTime& time)
{
    const double days = date.isValid() ? double(SerialZero.daysTo(date)) : 0.0;
    const double fraction = QTime(0, 0).secsTo(time) / double(SecondsPerDay);
    // Before the zero day the time still counts away from zero: -1.5 is 1899-12-29 12:00.
    return days < 0 ? days - fraction : days + fraction;
}

bool fromSerial(double serial, QDate& date, QTime& time)
{
    if (!std::isfinite(serial))
        return false;
    qint64 days = qint64(std::trunc(serial));
    if (days < FirstSerialDay || days > LastSerialDay)
        return false;
    qint64 seconds = qint64(std::llround(std::fabs(serial - double(days)) * SecondsPerDay));
    if (seconds >= SecondsPerDay) {
        seconds = 0;
        days += serial < 0 ? -1 : 1;
        if (days < FirstSerialDay || days > LastSerialDay)
            return false;
    }
    date = SerialZero.addDays(days);
    time = QTime(0, 0).addSecs(int(seconds));
    return true;
}

} // namespace

namespace FormatPattern {

QString formatNumber(double value, const QString& pattern)
{
    if (!std::isfinite(value) || !isNumberPattern(pattern))
        return Numeric::toText(value);
    return applyNumberPattern(value, pattern);
}

QString formatText(const QString& value, const QString& pattern)
{
    const bool numberPattern = isNumberPattern(pattern);
    if (!numberPattern && !isDatePattern(pattern))
        return value;

    if (Numeric::isNumeric(value)) {
        double number = 0;
        try {
            number = Numeric::toDouble(value);
        } catch (const RuntimeError&) {
            return value; // beyond a double: left as it stands
        }
        if (numberPattern)
            return applyNumberPattern(number, pattern);
        QDate date;
        QTime time;
        return fromSerial(number, date, time) ? applyDatePattern(date, time, pattern) : value;
    }

    const RecognisedDateTime recognised = recogniseDateTime(value);
    if (!recognised.ok)
        return value;
    const QDate date = recognised.hasDate ? recognised.date : SerialZero;
    if (numberPattern)
        return applyNumberPattern(toSerial(date, recognised.time), pattern);
    return applyDatePattern(date, recognised.time, pattern);
}

QString formatDateTime(const QDateTime& value, const QString& pattern)
{
    if (!value.isValid())
        return QString();
    const QTime time = value.time();
    const QTime wholeSeconds(time.hour(), time.minute(), time.second());
    if (isNumberPattern(pattern))
        return applyNumberPattern(toSerial(value.date(), wholeSeconds), pattern);
    return applyDatePattern(value.date(), wholeSeconds, pattern);
}

} // namespace FormatPattern
