#include "record_file.h"

#include "runtime_error.h"

#include <cerrno>
#include <cmath>
#include <limits>

namespace {

constexpr int MaxRecordLength = 32767;

void checkRecordLength(int recordLength, const QString& name)
{
    if (recordLength < 1 || recordLength > MaxRecordLength)
        throw RuntimeError(RuntimeError::InvalidProcedureCall,
            QStringLiteral("Opening %1 with records of %2 bytes").arg(name).arg(recordLength));
}

} // namespace

RecordFile::RecordFile(const QString& path, int recordLength, Access access)
    : m_recordLength(recordLength)
    , m_name(path)
{
    checkRecordLength(recordLength, path);
    m_device = openDataFile(path, access == Access::Read ? DataFileMode::Input : DataFileMode::Random,
        QStringLiteral("Opening %1").arg(path));
}

RecordFile::RecordFile(std::unique_ptr<FileDevice> device, int recordLength, const QString& name)
    : m_device(std::move(device))
    , m_recordLength(recordLength)
    , m_name(name)
{
    checkRecordLength(recordLength, name);
}

RecordFile::~RecordFile() = default;

QByteArray RecordFile::read(qint64 number)
{
    FileDevice& file = device("Reading");
    seekRecord(number, "Reading");
    QByteArray bytes(m_recordLength, Qt::Uninitialized);
    qint64 got = 0;
    while (got < m_recordLength) {
        const qint64 part = file.read(bytes.data() + got, m_recordLength - got);
        if (part < 0)
            throwFileError(file.lastError() != 0 ? file.lastError() : EIO, m_name, context("Reading"));
        if (part == 0)
            break;
        got += part;
    }
    bytes.truncate(got);
    return bytes;
}

void RecordFile::write(qint64 number, const QByteArray& bytes)
{
    FileDevice& file = device("Writing");
    QByteArray record = bytes.left(m_recordLength);
    record.append(m_recordLength - record.size(), ' ');
    seekRecord(number, "Writing");
    if (file.write(record) != record.size())
        throwFileError(file.lastError() != 0 ? file.lastError() : ENOSPC, m_name, context("Writing"));
}

qint64 RecordFile::length() const
{
    return device("Measuring").size();
}

qint16 RecordFile::recordCount() const
{
    // nearbyint rounds a half to the even neighbour in the default rounding mode.
    const double count = std::nearbyint(double(length()) / double(m_recordLength));
    if (count > std::numeric_limits<qint16>::max())
        throw RuntimeError(RuntimeError::Overflow, context("Counting the records of"));
    return qint16(count);
}

void RecordFile::close()
{
    m_device.reset();
}

FileDevice& RecordFile::device(const char* what) const
{
    if (!m_device)
        throw RuntimeError(RuntimeError::BadFileNameOrNumber, context(what) + QStringLiteral(" (closed)"));
    return *m_device;
}

void RecordFile::seekRecord(qint64 number, const char* what)
{
    const qint64 maxNumber = std::numeric_limits<qint64>::max() / m_recordLength;
    if (number < 1 || number > maxNumber)
        throw RuntimeError(RuntimeError::BadRecordNumber,
            QStringLiteral("%1 record %2 of %3").arg(QLatin1String(what)).arg(number).arg(m_name));
    FileDevice& file = *m_device;
    if (!file.seek((number - 1) * m_recordLength))
        throwFileError(file.lastError() != 0 ? file.lastError() : EINVAL, m_name, context(what));
}

QString RecordFile::context(const char* what) const
{
    return QStringLiteral("%1 %2").arg(QLatin1String(what), m_name);
}
