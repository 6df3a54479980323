#include "record_file.h"

#include "runtime_error.h"

#include <cerrno>
#include <cmath>
#include <limits>

namespace {

constexpr int MaxRecordLength = 32767;
constexpr int BlockLength = 64 * 1024;

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

// Records are read in blocks: a load reads every record in turn, and a system call or two per
// record would cost more than all the rest. Other programs change these files only under an
// exclusive lock, which the shared lock held here keeps out, so a block stays true while the file
// is open; writes through this object drop it.
QByteArray RecordFile::read(qint64 number)
{
    device("Reading");
    const qint64 start = recordStart(number);
    const qint64 aheadEnd = m_aheadStart + m_ahead.size();
    const bool held = start >= m_aheadStart && !m_ahead.isEmpty()
        && (start + m_recordLength <= aheadEnd || (m_aheadToEnd && start <= aheadEnd));
    if (!held) {
        seekRecord(number, "Reading");
        readAhead(start);
    }
    return m_ahead.mid(start - m_aheadStart, m_recordLength);
}

void RecordFile::readAhead(qint64 start)
{
    FileDevice& file = *m_device;
    const qint64 blockLength = qMax(1, BlockLength / m_recordLength) * qint64(m_recordLength);
    m_ahead.resize(blockLength);
    m_aheadStart = start;
    qint64 got = 0;
    bool faulted = false;
    while (got < blockLength) {
        const qint64 part = file.read(m_ahead.data() + got, blockLength - got);
        if (part < 0) {
            faulted = true;
            break;
        }
        if (part == 0)
            break;
        got += part;
    }
    // The records before a fault still count; the record that holds it fails.
    if (faulted && got < m_recordLength) {
        m_ahead.clear();
        throwFileError(file.lastError() != 0 ? file.lastError() : EIO, m_name, context("Reading"));
    }
    m_aheadToEnd = !faulted && got < blockLength;
    m_ahead.truncate(got);
}

void RecordFile::write(qint64 number, const QByteArray& bytes)
{
    FileDevice& file = device("Writing");
    m_ahead.clear();
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
    m_ahead.clear();
    m_device.reset();
}

FileDevice& RecordFile::device(const char* what) const
{
    if (!m_device)
        throw RuntimeError(RuntimeError::BadFileNameOrNumber, context(what) + QStringLiteral(" (closed)"));
    return *m_device;
}

qint64 RecordFile::recordStart(qint64 number) const
{
    const qint64 maxNumber = std::numeric_limits<qint64>::max() / m_recordLength;
    return number >= 1 && number <= maxNumber ? (number - 1) * m_recordLength : -1;
}

void RecordFile::seekRecord(qint64 number, const char* what)
{
    const qint64 start = recordStart(number);
    if (start < 0)
        throw RuntimeError(RuntimeError::BadRecordNumber,
            QStringLiteral("%1 record %2 of %3").arg(QLatin1String(what)).arg(number).arg(m_name));
    FileDevice& file = *m_device;
    if (!file.seek(start))
        throwFileError(file.lastError() != 0 ? file.lastError() : EINVAL, m_name, context(what));
}

QString RecordFile::context(const char* what) const
{
    return QStringLiteral("%1 %2").arg(QLatin1String(what), m_name);
}
