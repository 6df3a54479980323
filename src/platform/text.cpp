#include "text.h"

#include "runtime_error.h"

namespace {

constexpr QChar Blank = u' ';

void requireNonNegative(qsizetype value)
{
    if (value < 0)
        throw RuntimeError(RuntimeError::InvalidProcedureCall);
}

} // namespace

namespace Text {

namespace {

qsizetype leadingBlanks(QStringView text)
{
    qsizetype first = 0;
    while (first < text.size() && text.at(first) == Blank)
        ++first;
    return first;
}

qsizetype endWithoutTrailingBlanks(QStringView text)
{
    qsizetype end = text.size();
    while (end > 0 && text.at(end - 1) == Blank)
        --end;
    return end;
}

} // namespace

QString LTrim(const QString& text)
{
    return text.mid(leadingBlanks(text));
}

QString RTrim(const QString& text)
{
    return text.left(endWithoutTrailingBlanks(text));
}

QStringView TrimView(QStringView text)
{
    const QStringView kept = text.first(endWithoutTrailingBlanks(text));
    return kept.sliced(leadingBlanks(kept));
}

// One copy at most, none for a text without outer blanks: lists of thousands of fields are trimmed.
QString Trim(const QString& text)
{
    const QStringView trimmed = TrimView(text);
    return trimmed.size() == text.size() ? text : trimmed.toString();
}

QString Left(const QString& text, qsizetype length)
{
    requireNonNegative(length);
    return text.left(length);
}

QString Right(const QString& text, qsizetype length)
{
    requireNonNegative(length);
    return length >= text.size() ? text : text.right(length);
}

QString Mid(const QString& text, qsizetype start)
{
    if (start < 1)
        throw RuntimeError(RuntimeError::InvalidProcedureCall);
    return start > text.size() ? QString() : text.mid(start - 1);
}

QString Mid(const QString& text, qsizetype start, qsizetype length)
{
    requireNonNegative(length);
    const QString rest = Mid(text, start);
    return rest.left(length);
}

QString Space(qsizetype count)
{
    requireNonNegative(count);
    return QString(count, Blank);
}

QString UCase(const QString& text)
{
    QString upper = text;
    for (QChar& c : upper) {
        const char16_t u = c.unicode();
        if (u >= u'a' && u <= u'z')
            c = QChar(char16_t(u - 0x20));
        // à..þ map 0x20 down, except ÷ (0xF7), which is no letter.
        else if (u >= 0xE0 && u <= 0xFE && u != 0xF7)
            c = QChar(char16_t(u - 0x20));
    }
    return upper;
}

QString fixedField(const QString& text, qsizetype width)
{
    requireNonNegative(width);
    return text.left(width).leftJustified(width, Blank);
}

QByteArray toLatin1Bytes(const QString& text)
{
    return text.toLatin1();
}

QString fromLatin1Bytes(const QByteArray& bytes)
{
    return QString::fromLatin1(bytes);
}

bool isLatin1(const QString& text)
{
    for (QChar c : text) {
        if (c.unicode() > 0xFF)
            return false;
    }
    return true;
}

} // namespace Text
