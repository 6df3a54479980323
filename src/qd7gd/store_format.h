#pragma once
// The text format of the settings store, described byte by byte in docs/settings-store.md.
//
// One value per line, "NAME=VALUE", LF line ends; blank lines and lines that begin with ';' or
// '#' are comments. In names and values a backslash starts an escape: "\\" is one backslash,
// "\xHH" one byte. The writer escapes what a reader or an editor could misread, so the file it
// writes is plain ASCII; a reader also takes raw bytes (Latin-1) as themselves. A file with any
// line that does not parse is corrupt as a whole.
#include <QByteArray>
#include <QByteArrayView>
#include <QList>

#include <optional>

namespace qd7gd {

// One value line of a store file: its decoded name and value, and where the line lies in the
// file (from its first byte up to, not including, its line end).
struct StoreEntry {
    QByteArray name;
    QByteArray value;
    qsizetype lineStart = 0;
    qsizetype lineEnd = 0;
};

// What a look-up of one name found.
enum class Lookup { Absent, Found, Corrupt };

// Finds the value of `name` in a store file without building the whole document: the cheap
// path of every read. Validates every line, as parsing does, so a corrupt file is never half
// read. When a name occurs on several lines, the last one counts.
Lookup lookupValue(QByteArrayView file, QByteArrayView name, QByteArray* value);

// "NAME=VALUE\n" as the writer writes it.
QByteArray formatLine(QByteArrayView name, QByteArrayView value);

// A whole store file, parsed, that can be edited while every line it does not change stays
// byte for byte as it was.
class StoreDocument {
public:
    // Empty when the bytes do not parse.
    static std::optional<StoreDocument> parse(QByteArray bytes);

    const QByteArray& bytes() const { return m_bytes; }
    // Every value line in file order, names that occur twice included.
    const QList<StoreEntry>& entries() const { return m_entries; }
    // The value lines that count: each name once, at the place of its last line.
    QList<StoreEntry> effectiveEntries() const;
    std::optional<QByteArray> value(QByteArrayView name) const;

    // Both return false and change nothing when there is nothing to change.
    bool setValue(QByteArrayView name, QByteArrayView value);
    bool remove(QByteArrayView name);

    // The comment line that starts a store file the writer creates.
    static const QByteArray kHeader;

private:
    StoreDocument() = default;
    qsizetype lastIndexOf(QByteArrayView name) const;
    void reparse();

    QByteArray m_bytes;
    QList<StoreEntry> m_entries;
};

} // namespace qd7gd
