#pragma once

#include "platform/file_errors.h"

#include <cerrno>
#include <cstring>
#include <limits>

// A file in memory on a disk with room for `room` bytes: a write that doesn't fit stores what fits and
// fails with ENOSPC. Reads stop short of a bad sector, and one that starts on it fails with EIO.
class FailingDevice : public FileDevice
{
public:
    explicit FailingDevice(qint64 room, QByteArray contents = {})
        : m_contents(std::move(contents))
        , m_room(room)
    {
        open(QIODevice::ReadWrite | QIODevice::Unbuffered);
    }

    const QByteArray& contents() const { return m_contents; }
    void setBadSectorAt(qint64 offset) { m_badSector = offset; }
    qint64 size() const override { return m_contents.size(); }

protected:
    qint64 readData(char* data, qint64 maxSize) override
    {
        if (pos() >= m_badSector) {
            setLastError(EIO);
            return -1;
        }
        const qint64 count = qBound(qint64(0), qMin(m_contents.size(), m_badSector) - pos(), maxSize);
        std::memcpy(data, m_contents.constData() + pos(), size_t(count));
        return count;
    }

    qint64 writeData(const char* data, qint64 size) override
    {
        const qint64 count = qMin(m_room, size);
        if (count < size)
            setLastError(ENOSPC);
        if (count == 0)
            return -1;
        if (pos() + count > m_contents.size())
            m_contents.resize(pos() + count, '\0');
        std::memcpy(m_contents.data() + pos(), data, size_t(count));
        m_room -= count;
        return count;
    }

private:
    QByteArray m_contents;
    qint64 m_room;
    qint64 m_badSector = std::numeric_limits<qint64>::max();
};
