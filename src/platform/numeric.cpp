#include "numeric.h"

#include "runtime_error.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace {

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

// A number as read from text, in parts, so that it converts without a locale.
struct NumberParts
{
    bool negative = false;
    std::string integerDigits;
    std::string fractionDigits;
    bool exponentNegative = false;
    std::string exponentDigits;
};

// Reads the longest number at `pos`; returns the end position, or -1 when no digit stands there.
// An "e" without a digit after it (and its sign) is not part of the number.
qsizetype scanNumber(QStringView text, qsizetype pos, NumberParts& parts)
{
    const qsizetype size = text.size();
    if (pos < size && (text[pos] == u'+' || text[pos] == u'-')) {
        parts.negative = text[pos] == u'-';
        ++pos;
    }
    while (pos < size && isDigit(text[pos]))
        parts.integerDigits += char(text[pos++].unicode());
    if (pos < size && text[pos] == u'.') {
        ++pos;
        while (pos < size && isDigit(text[pos]))
            parts.fractionDigits += char(text[pos++].unicode());
    }
    if (parts.integerDigits.empty() && parts.fractionDigits.empty())
        return -1;

    if (pos < size && (text[pos] == u'e' || text[pos] == u'E')) {
        qsizetype p = pos + 1;
        bool negative = false;
        if (p < size && (text[p] == u'+' || text[p] == u'-')) {
            negative = text[p] == u'-';
            ++p;
        }
        std::string digits;
        while (p < size && isDigit(text[p]))
            digits += char(text[p++].unicode());
        if (!digits.empty()) {
            parts.exponentNegative = negative;
            parts.exponentDigits = std::move(digits);
            pos = p;
        }
    }
    return pos;
}

// Decimal exponent of the leading significant digit, to tell overflow from underflow.
qint64 magnitude(const NumberParts& parts)
{
    qint64 exponent = 0;
    for (char d : parts.exponentDigits) {
        exponent = exponent * 10 + (d - '0');
        if (exponent > 1'000'000'000)
            break; // far beyond any double either way
    }
    if (parts.exponentNegative)
        exponent = -exponent;
    const auto firstNonZero = parts.integerDigits.find_first_not_of('0');
    if (firstNonZero != std::string::npos)
        return exponent + qint64(parts.integerDigits.size() - firstNonZero) - 1;
    const auto firstInFraction = parts.fractionDigits.find_first_not_of('0');
    return exponent - qint64(firstInFraction) - 1;
}

double toValue(const NumberParts& parts)
{
    std::string ascii = parts.integerDigits.empty() ? std::string("0") : parts.integerDigits;
    if (!parts.fractionDigits.empty())
        ascii += '.' + parts.fractionDigits;
    if (!parts.exponentDigits.empty())
        ascii += (parts.exponentNegative ? "e-" : "e") + parts.exponentDigits;

    double value = 0;
    const auto converted = std::from_chars(ascii.data(), ascii.data() + ascii.size(), value);
    if (converted.ec == std::errc::result_out_of_range) {
        if (magnitude(parts) > 0)
            throw RuntimeError(RuntimeError::Overflow);
        value = 0;
    }
    return parts.negative ? -value : value;
}

bool parseNumeric(const QString& text, NumberParts& parts)
{
    const QStringView view(text);
    qsizetype pos = 0;
    while (pos < view.size() && view[pos] == u' ')
        ++pos;
    pos = scanNumber(view, pos, parts);
    if (pos < 0)
        return false;
    while (pos < view.size() && view[pos] == u' ')
        ++pos;
    return pos == view.size();
}

template<typename Int>
Int toInteger(double value)
{
    if (!std::isfinite(value))
        throw RuntimeError(RuntimeError::Overflow);
    const double rounded = Numeric::roundHalfEven(value);
    if (rounded < double(std::numeric_limits<Int>::min()) || rounded > double(std::numeric_limits<Int>::max()))
        throw RuntimeError(RuntimeError::Overflow);
    return Int(rounded);
}

} // namespace

namespace Numeric {

bool isNumeric(const QString& text)
{
    NumberParts parts;
    return parseNumeric(text, parts);
}

double toDouble(const QString& text)
{
    NumberParts parts;
    if (!parseNumeric(text, parts))
        throw RuntimeError(RuntimeError::TypeMismatch);
    return toValue(parts);
}

double roundHalfEven(double value)
{
    // Spelled out rather than left to the rounding mode of the floating-point environment.
    const double nearest = std::round(value); // halves away from zero
    if (std::fabs(value - std::trunc(value)) == 0.5)
        return 2.0 * std::round(value / 2.0);
    return nearest;
}

qint16 toInt16(double value)
{
    return toInteger<qint16>(value);
}

qint32 toInt32(double value)
{
    return toInteger<qint32>(value);
}

qint16 toInt16(const QString& text)
{
    return toInt16(toDouble(text));
}

qint32 toInt32(const QString& text)
{
    return toInt32(toDouble(text));
}

qint16 recordCount(qint64 fileLength, int recordLength)
{
    if (recordLength < 1 || fileLength < 0)
        throw RuntimeError(RuntimeError::InvalidProcedureCall);
    return toInt16(double(fileLength) / double(recordLength));
}

double val(const QString& text)
{
    QString packed;
    packed.reserve(text.size());
    for (QChar c : text) {
        if (c != u' ' && c != u'\t' && c != u'\n')
            packed += c;
    }
    NumberParts parts;
    if (scanNumber(packed, 0, parts) < 0)
        return 0;
    return toValue(parts);
}

qint16 wrapInt16(qint64 value)
{
    return qint16(quint16(quint64(value) & 0xFFFF));
}

QString toText(double value)
{
    if (value == 0)
        return QStringLiteral("0"); // no "-0"
    QString text = QString::number(value, 'g', 15);
    text.replace(u'e', u'E');
    return text;
}

QString str(double value)
{
    const QString text = toText(value);
    return text.startsWith(u'-') ? text : u' ' + text;
}

} // namespace Numeric
