#include "line_file.h"

#include "runtime_error.h"

#include <cerrno>

namespace {

constexpr qint64 ChunkSize = 4096;

DataFileMode dataFileMode(LineFile::Mode mode)
{
    switch (mode) {
    case LineFile::Mode::Input:
        return DataFileMode::Input;
    case LineFile::Mode::Output:
        return DataFileMode::Output;
    case LineFile::Mode::Append:
        return DataFileMode::Append;
    }
    return DataFileMode::Input;
}

} // namespace

LineFile::LineFile(const QString& path, Mode mode)
    : m_device(openDataFile(path, dataFileMode(mode), QStringLiteral("Opening %1").arg(path)))
    , m_mode(mode)
    , m_name(path)
{ }

LineFile::LineFile(std::unique_ptr<FileDevice> device, Mode mode, const QString& name)
    : m_device(std::move(device))
    , m_mode(mode)
    , m_name(name)
{ }

LineFile::~LineFile() = default;

QString LineFile::readLine()
{
    device("Reading");
    if (m_mode != Mode::Input)
        throw RuntimeError(RuntimeError::BadFileMode, context("Reading from"));
    if (atEnd())
        throw RuntimeError(RuntimeError::InputPastEndOfFile, context("Reading"));

    QByteArray line;
    for (;;) {
        const qsizetype end = [&] {
            for (qsizetype i = m_next; i < m_buffer.size(); ++i) {
                if (m_buffer[i] == '\r' || m_buffer[i] == '\n')
                    return i;
            }
            return qsizetype(-1);
        }();
        if (end < 0) {
            line.append(QByteArrayView(m_buffer).sliced(m_next));
            m_next = m_buffer.size();
            if (!fill())
                break; // the last line had no end
            continue;
        }
        line.append(QByteArrayView(m_buffer).sliced(m_next, end - m_next));
        m_next = end + 1;
        // The LF of a CR LF may start the next chunk.
        if (m_buffer[end] == '\r' && (m_next < m_buffer.size() || fill()) && m_buffer[m_next] == '\n')
            ++m_next;
        break;
    }
    return QString::fromLatin1(line);
}

bool LineFile::atEnd()
{
    device("Testing the end of");
    return m_mode != Mode::Input || (m_next >= m_buffer.size() && !fill());
}

void LineFile::writeLine(const QString& text)
{
    FileDevice& file = device("Writing");
    if (m_mode == Mode::Input)
        throw RuntimeError(RuntimeError::BadFileMode, context("Writing to"));
    const QByteArray bytes = text.toLatin1() + "\r\n";
    if (file.write(bytes) != bytes.size())
        throwFileError(file.lastError() != 0 ? file.lastError() : ENOSPC, m_name, context("Writing"));
}

void LineFile::close()
{
    m_device.reset();
    m_buffer.clear();
    m_next = 0;
}

FileDevice& LineFile::device(const char* what) const
{
    if (!m_device)
        throw RuntimeError(RuntimeError::BadFileNameOrNumber, context(what) + QStringLiteral(" (closed)"));
    return *m_device;
}

// Replaces the consumed buffer with the next chunk; false at the end of the file.
bool LineFile::fill()
{
    m_buffer.resize(ChunkSize);
    const qint64 got = m_device->read(m_buffer.data(), ChunkSize);
    if (got < 0) {
        m_buffer.clear();
        m_next = 0;
        throwFileError(m_device->lastError() != 0 ? m_device->lastError() : EIO, m_name, context("Reading"));
    }
    m_buffer.truncate(got);
    m_next = 0;
    return got > 0;
}

QString LineFile::context(const char* what) const
{
    return QStringLiteral("%1 %2").arg(QLatin1String(what), m_name);
}
