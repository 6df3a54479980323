#pragma once

#include "platform/file_errors.h"

#include <QByteArray>

#include <cerrno>
#include <cstring>

// A file in memory that takes `capacity` bytes and then fails every write with `error`, as a full
// disk does with ENOSPC: a write that doesn't fit stores what fits and comes back short.
class FailingDevice : public FileDevice
{
public:
    explicit FailingDevice(qint64 capacity, int error = ENOSPC, QByteArray contents = {})
        : m_contents(std::move(contents))
        , m_capacity(capacity)
        , m_error(error)
    {
        open(QIODevice::ReadWrite | QIODevice::Unbuffered);
    }

    const QByteArray& contents() const { return m_contents; }
    void failReads(bool fail) { m_failReads = fail; }

    bool isSequential() const override { return false; }
    qint64 size() const override { return m_contents.size(); }

protected:
    qint64 readData(char* data, qint64 maxSize) override
    {
        if (m_failReads) {
            setLastError(m_error);
            return -1;
        }
        const qint64 count = qBound(qint64(0), m_contents.size() - pos(), maxSize);
        std::memcpy(data, m_contents.constData() + pos(), size_t(count));
        return count;
    }

    qint64 writeData(const char* data, qint64 size) override
    {
        const qint64 room = qMax(qint64(0), m_capacity - m_written);
        const qint64 count = qMin(room, size);
        if (count == 0) {
            setLastError(m_error);
            return -1;
        }
        if (pos() + count > m_contents.size())
            m_contents.resize(pos() + count, '\0');
        std::memcpy(m_contents.data() + pos(), data, size_t(count));
        m_written += count;
        if (count < size)
            setLastError(m_error);
        return count;
    }

private:
    QByteArray m_contents;
    qint64 m_capacity;
    qint64 m_written = 0;
    int m_error;
    bool m_failReads = false;
};
