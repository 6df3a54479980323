#pragma once

#include <QString>

#include <functional>

// The three exclusion list files in BinDir (docs/data-files.md): lines of an entry blank-filled to
// the width W and CR LF, which the console writes as lines and reads as records of W + 2 bytes.
struct ExclusionFile
{
    const char* name; // qd7IDsToIgnore.dat
    const char* backupName; // qd7IDsToIgnore.bak, written before each save and never read
    int width; // W

    int recordLength() const { return width + 2; }
    QString path() const;
    QString backupPath() const;
};

namespace ExclusionFiles {
extern const ExclusionFile IDs;
extern const ExclusionFile Programs;
extern const ExclusionFile Transactions;
} // namespace ExclusionFiles

// Hands each entry of the file to `add`, in file order: the first W bytes of each record, trimmed,
// for length / record length records rounded half to even, so a last line without its CR LF still
// counts. Nothing is filtered: a blank record gives an empty entry and duplicates stay. A missing
// file gives nothing. Failures to open or read rise as RuntimeError.
void ReadExclusionEntries(const ExclusionFile& file, const std::function<void(const QString&)>& add);

// The line that stands for an entry, without its CR LF: the entry upper-cased as it is, outer
// blanks included, then as many blanks as W exceeds the length of the trimmed entry. So an entry
// with outer blanks makes its line longer than W, and later records are read out of step.
QString ExclusionLine(const QString& entry, int width);
