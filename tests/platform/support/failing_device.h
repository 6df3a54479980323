#pragma once

#include "platform/file_errors.h"

#include <cerrno>
#include <cstring>

// A file in memory on a disk with room for `room` bytes: a write that doesn't fit stores what fits
// and comes back short with ENOSPC, as a full disk does.
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
    qint64 size() const override { return m_contents.size(); }

protected:
    qint64 readData(char* data, qint64 maxSize) override
    {
        const qint64 count = qBound(qint64(0), m_contents.size() - pos(), maxSize);
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
};
