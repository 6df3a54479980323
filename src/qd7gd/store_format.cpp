#include "store_format.h"

#include <QSet>

#include <cstring>

namespace qd7gd {

const QByteArray StoreDocument::kHeader =
    "; Orvanta Monitor settings, kept by qd7gd. One NAME=VALUE per line;"
    " \\\\ is a backslash, \\xHH a byte.\n";

namespace {

int hexValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return -1;
}

// Length of the escape at p ("\\" or "\xHH"), or 0 when it is not a valid one.
qsizetype escapeLength(const char* p, const char* end)
{
    if (end - p >= 2 && p[1] == '\\')
        return 2;
    if (end - p >= 4 && p[1] == 'x' && hexValue(p[2]) >= 0 && hexValue(p[3]) >= 0)
        return 4;
    return 0;
}

bool validEscapes(QByteArrayView raw)
{
    const char* p = raw.data();
    const char* const end = p + raw.size();
    while ((p = static_cast<const char*>(std::memchr(p, '\\', size_t(end - p))))) {
        const qsizetype n = escapeLength(p, end);
        if (n == 0)
            return false;
        p += n;
    }
    return true;
}

// The byte at p of a validly escaped text, and how many raw bytes it took.
char decodeAt(const char* p, qsizetype* taken)
{
    if (*p != '\\') {
        *taken = 1;
        return *p;
    }
    if (p[1] == '\\') {
        *taken = 2;
        return '\\';
    }
    *taken = 4;
    return char(hexValue(p[2]) * 16 + hexValue(p[3]));
}

QByteArray unescape(QByteArrayView raw)
{
    if (!raw.contains('\\'))
        return raw.toByteArray();
    QByteArray out;
    out.reserve(raw.size());
    for (const char* p = raw.data(); p < raw.data() + raw.size();) {
        qsizetype taken = 0;
        out.append(decodeAt(p, &taken));
        p += taken;
    }
    return out;
}

// Whether a validly escaped text decodes to `plain`, without decoding it into a copy.
bool rawEquals(QByteArrayView raw, QByteArrayView plain)
{
    if (raw.size() < plain.size())
        return false;
    const char* p = raw.data();
    const char* const end = p + raw.size();
    for (const char c : plain) {
        if (p == end)
            return false;
        qsizetype taken = 0;
        if (decodeAt(p, &taken) != c)
            return false;
        p += taken;
    }
    return p == end;
}

// A line with nothing but blanks and tabs, or whose first other byte is ';' or '#'.
bool isIgnored(QByteArrayView line)
{
    for (const char c : line) {
        if (c == ' ' || c == '\t')
            continue;
        return c == ';' || c == '#';
    }
    return true;
}

// Calls f(rawName, rawValue, lineStart, lineEnd) for every value line; false when a line does
// not parse (the file is corrupt; f may have been called for earlier lines).
template <typename F>
bool forEachValueLine(QByteArrayView file, F&& f)
{
    const char* const data = file.data();
    const qsizetype size = file.size();
    qsizetype pos = 0;
    while (pos < size) {
        const auto* nl = static_cast<const char*>(std::memchr(data + pos, '\n', size_t(size - pos)));
        const qsizetype next = nl ? nl - data + 1 : size;
        qsizetype end = nl ? nl - data : size;
        if (end > pos && data[end - 1] == '\r')
            --end;
        const QByteArrayView line(data + pos, end - pos);
        if (!isIgnored(line)) {
            const qsizetype eq = line.indexOf('=');
            if (eq <= 0)
                return false;
            const QByteArrayView rawName = line.first(eq);
            const QByteArrayView rawValue = line.sliced(eq + 1);
            if (!validEscapes(rawName) || !validEscapes(rawValue))
                return false;
            f(rawName, rawValue, pos, end);
        }
        pos = next;
    }
    return true;
}

void appendHex(QByteArray& out, unsigned char c)
{
    static const char digits[] = "0123456789ABCDEF";
    out.append('\\').append('x').append(digits[c >> 4]).append(digits[c & 15]);
}

bool isPlainAscii(unsigned char c) { return c >= 0x20 && c < 0x7F; }

} // namespace

Lookup lookupValue(QByteArrayView file, QByteArrayView name, QByteArray* value)
{
    QByteArrayView found;
    bool any = false;
    const bool ok = forEachValueLine(file, [&](QByteArrayView rawName, QByteArrayView rawValue, qsizetype, qsizetype) {
        if (rawEquals(rawName, name)) {
            found = rawValue;
            any = true;
        }
    });
    if (!ok)
        return Lookup::Corrupt;
    if (!any)
        return Lookup::Absent;
    if (value)
        *value = unescape(found);
    return Lookup::Found;
}

QByteArray formatLine(QByteArrayView name, QByteArrayView value)
{
    QByteArray out;
    out.reserve(name.size() + value.size() + 8);
    for (qsizetype i = 0; i < name.size(); ++i) {
        const auto c = static_cast<unsigned char>(name[i]);
        const bool leading = i == 0 && (c == ';' || c == '#' || c == '[');
        if (c == '\\')
            out.append("\\\\");
        else if (c == '=' || c == ' ' || leading || !isPlainAscii(c))
            appendHex(out, c);
        else
            out.append(char(c));
    }
    out.append('=');
    for (qsizetype i = 0; i < value.size(); ++i) {
        const auto c = static_cast<unsigned char>(value[i]);
        const bool lastBlank = c == ' ' && i == value.size() - 1;
        if (c == '\\')
            out.append("\\\\");
        else if (lastBlank || !isPlainAscii(c))
            appendHex(out, c);
        else
            out.append(char(c));
    }
    out.append('\n');
    return out;
}

std::optional<StoreDocument> StoreDocument::parse(QByteArray bytes)
{
    StoreDocument doc;
    doc.m_bytes = std::move(bytes);
    const bool ok = forEachValueLine(doc.m_bytes, [&](QByteArrayView rawName, QByteArrayView rawValue, qsizetype start, qsizetype end) {
        doc.m_entries.append(StoreEntry{unescape(rawName), unescape(rawValue), start, end});
    });
    if (!ok)
        return std::nullopt;
    return doc;
}

void StoreDocument::reparse()
{
    auto again = parse(m_bytes);
    Q_ASSERT(again);
    m_entries = std::move(again->m_entries);
}

qsizetype StoreDocument::lastIndexOf(QByteArrayView name) const
{
    for (qsizetype i = m_entries.size() - 1; i >= 0; --i) {
        if (m_entries[i].name == name)
            return i;
    }
    return -1;
}

QList<StoreEntry> StoreDocument::effectiveEntries() const
{
    QList<StoreEntry> out;
    QSet<QByteArray> seen;
    for (qsizetype i = m_entries.size() - 1; i >= 0; --i) {
        if (!seen.contains(m_entries[i].name)) {
            seen.insert(m_entries[i].name);
            out.prepend(m_entries[i]);
        }
    }
    return out;
}

std::optional<QByteArray> StoreDocument::value(QByteArrayView name) const
{
    const qsizetype i = lastIndexOf(name);
    if (i < 0)
        return std::nullopt;
    return m_entries[i].value;
}

bool StoreDocument::setValue(QByteArrayView name, QByteArrayView value)
{
    const qsizetype i = lastIndexOf(name);
    QByteArray line = formatLine(name, value);
    if (i >= 0) {
        const StoreEntry& e = m_entries[i];
        if (e.value == value)
            return false;
        line.chop(1); // the old line keeps its own line end
        m_bytes.replace(e.lineStart, e.lineEnd - e.lineStart, line);
    } else {
        if (m_bytes.isEmpty())
            m_bytes = kHeader;
        else if (!m_bytes.endsWith('\n'))
            m_bytes.append('\n');
        m_bytes.append(line);
    }
    reparse();
    return true;
}

bool StoreDocument::remove(QByteArrayView name)
{
    bool removed = false;
    for (qsizetype i = m_entries.size() - 1; i >= 0; --i) {
        const StoreEntry& e = m_entries[i];
        if (e.name != name)
            continue;
        const qsizetype nl = m_bytes.indexOf('\n', e.lineEnd);
        const qsizetype next = nl < 0 ? m_bytes.size() : nl + 1;
        m_bytes.remove(e.lineStart, next - e.lineStart);
        removed = true;
    }
    if (removed)
        reparse();
    return removed;
}

} // namespace qd7gd
