#pragma once

#include "platform/text.h"

#include <QByteArray>
#include <QString>

// The records of the two SLA group files, byte for byte (docs/data-files.md). Fields are
// ISO-8859-1 text, left-aligned and blank-filled; a longer value is cut to its field, so a name of
// 40 characters reaches both files as the same 35 and the link between them holds.

// One record of qd7AppGroup.dat: 39 bytes, the group name in 35 and the stored target in 4.
struct AppGroupRecordBuffer
{
    static constexpr int NameWidth = 35;
    static constexpr int TargetWidth = 4;
    static constexpr int Length = NameWidth + TargetWidth;

    QString Name;
    QString Target;

    // The 39 bytes to write.
    QByteArray toBytes() const
    {
        return Text::toLatin1Bytes(Text::fixedField(Name, NameWidth) + Text::fixedField(Target, TargetWidth));
    }

    // The fields as read, padding included; a short last record gives short fields.
    static AppGroupRecordBuffer fromBytes(const QByteArray& bytes)
    {
        return { Text::fromLatin1Bytes(bytes.left(NameWidth)),
            Text::fromLatin1Bytes(bytes.mid(NameWidth, TargetWidth)) };
    }
};

// One record of qd7TransGroup.dat: 55 bytes, the group name in 35 and the transaction code in 20.
struct TransGroupRecordBuffer
{
    static constexpr int NameWidth = 35;
    static constexpr int CodeWidth = 20;
    static constexpr int Length = NameWidth + CodeWidth;

    QString Name;
    QString Code;

    // The 55 bytes to write.
    QByteArray toBytes() const
    {
        return Text::toLatin1Bytes(Text::fixedField(Name, NameWidth) + Text::fixedField(Code, CodeWidth));
    }

    // The fields as read, padding included; a short last record gives short fields.
    static TransGroupRecordBuffer fromBytes(const QByteArray& bytes)
    {
        return { Text::fromLatin1Bytes(bytes.left(NameWidth)), Text::fromLatin1Bytes(bytes.mid(NameWidth, CodeWidth)) };
    }
};
