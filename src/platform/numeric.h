#pragma once

#include <QString>
#include <QtGlobal>

// The numeric test, conversions and rounding the console's routines are written against.
// Failures: RuntimeError 13 (type mismatch) for a text that is not numeric, RuntimeError 6
// (overflow) for a value that does not fit. The decimal point is always ".", whatever the locale.
namespace Numeric {

// Outer blanks; an optional sign; digits with at most one decimal point and at least one digit;
// an optional exponent "e"/"E" with an optional sign and at least one digit. Nothing else.
bool isNumeric(const QString& text);

// The value of a numeric text: 13 if not numeric, 6 beyond the range of a double. A value too
// small for a double is 0.
double toDouble(const QString& text);

// Nearest whole number, a tie to the even neighbour: 2.5 -> 2, 3.5 -> 4, -2.5 -> -2.
double roundHalfEven(double value);

// Round half to even, then check the range: 32767.5 -> 6 (it rounds to 32768), -32768.5 -> -32768.
// NaN and infinities are 6. The text forms go through toDouble first (13 if not numeric).
qint16 toInt16(double value);
qint32 toInt32(double value);
qint16 toInt16(const QString& text);
qint32 toInt32(const QString& text);

// Whole records in a file: length / recordLength rounded half to even, so a trailing piece of more
// than half a record counts. 6 when the count exceeds 32767; 5 for a record length below 1 or a
// negative file length.
qint16 recordCount(qint64 fileLength, int recordLength);

// The leading number of a text, blanks, tabs and line feeds skipped anywhere: "12abc" -> 12,
// " 1 2" -> 12, "1e2x" -> 100, "CLEAR" -> 0. Never 13; 6 beyond the range of a double.
double val(const QString& text);

// Two's-complement wrap into 16 bits, for a counter that must run round rather than overflow.
qint16 wrapInt16(qint64 value);

// A double as decimal text, up to 15 significant digits, no trailing zeros, "." as the point,
// exponent form beyond that range: 2.5 -> "2.5", 5 -> "5", 1e15 -> "1E+15", 1e-5 -> "1E-05".
QString toText(double value);
// The same with a leading blank for a value that is not negative: 31 -> " 31", -2 -> "-2".
QString str(double value);

} // namespace Numeric
