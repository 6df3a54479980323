#pragma once

#include <QByteArray>
#include <QString>

// Text helpers for the fixed-width single-byte (ISO-8859-1) fields of the data files and settings.
// Positions are 1-based where the console's routines count that way; a negative length or a
// start before 1 throws RuntimeError 5 (invalid procedure call or argument).
namespace Text {

// Remove blanks (U+0020) only: tabs and no-break spaces are data, not padding.
QString Trim(const QString& text);
// Trim without a copy, for texts built from several fields.
QStringView TrimView(QStringView text);
QString LTrim(const QString& text);
QString RTrim(const QString& text);

// The first / last `length` characters; a length beyond the text gives the whole text.
QString Left(const QString& text, qsizetype length);
QString Right(const QString& text, qsizetype length);
// From 1-based `start` to the end, or at most `length` characters; a start past the end gives "".
QString Mid(const QString& text, qsizetype start);
QString Mid(const QString& text, qsizetype start, qsizetype length);

QString Space(qsizetype count);

// Upper case within ISO-8859-1 only, one character for one: "ß" and "ÿ" have no single upper-case
// Latin-1 letter and stay, and anything beyond Latin-1 is left alone.
QString UCase(const QString& text);

// Left-aligned, blank-filled on the right, cut to `width`: one field of a fixed-width record.
QString fixedField(const QString& text, qsizetype width);

// Every byte 0-255 maps to the character of the same code and back. A character beyond Latin-1
// cannot be written and becomes "?"; test with isLatin1 first where that matters.
QByteArray toLatin1Bytes(const QString& text);
QString fromLatin1Bytes(const QByteArray& bytes);
bool isLatin1(const QString& text);

} // namespace Text
