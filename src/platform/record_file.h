#pragma once

#include "file_errors.h"

#include <QByteArray>
#include <QString>

#include <memory>

// A file of fixed-length records, numbered from 1; record n lies at byte (n - 1) x record length.
// No header, no trailer. Open while the object lives, holding the shared lock of docs/locking.md.
class RecordFile
{
public:
    enum class Access {
        ReadWrite, // creates a missing file, as random-access opens do
        Read, // a missing file is error 53
    };

    RecordFile(const QString& path, int recordLength, Access access = Access::ReadWrite);
    // For tests: works on a device they prepared, e.g. one that fails after some bytes.
    RecordFile(std::unique_ptr<FileDevice> device, int recordLength, const QString& name);
    ~RecordFile();

    RecordFile(const RecordFile&) = delete;
    RecordFile& operator=(const RecordFile&) = delete;

    int recordLength() const { return m_recordLength; }
    bool isOpen() const { return m_device != nullptr; }

    // The bytes that the file holds of record n: the whole record, a short one for a partial last
    // record, nothing past the end.
    QByteArray read(qint64 number);
    // Cuts or pads `bytes` with blanks to the record length. Writing beyond the end grows the file.
    void write(qint64 number, const QByteArray& bytes);

    qint64 length() const;
    // Length / record length rounded to the nearest, a half to even, as a signed 16-bit number.
    qint16 recordCount() const;

    void close();

private:
    FileDevice& device(const char* what) const;
    // The byte where record `number` starts; -1 for a number no record can have.
    qint64 recordStart(qint64 number) const;
    void seekRecord(qint64 number, const char* what);
    void readAhead(qint64 start);
    QString context(const char* what) const;

    std::unique_ptr<FileDevice> m_device;
    int m_recordLength;
    QString m_name;
    // The block read last, from byte m_aheadStart; m_aheadToEnd when it ends at the end of file.
    QByteArray m_ahead;
    qint64 m_aheadStart = 0;
    bool m_aheadToEnd = false;
};
