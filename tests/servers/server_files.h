#pragma once

#include "platform/forms/list_box.h"
#include "shell/MDIMainForm.h"
#include "support/file_bytes.h"

#include <QStatusBar>

// Server records built by hand, as a collector writes them, rather than by the code under test.
inline QByteArray serverRecord(const QByteArray& server, const QByteArray& sid = "PRD",
    const QByteArray& client = "100", const QByteArray& instance = "00", const QByteArray& password = "x1-")
{
    const auto field = [](const QByteArray& value, int width) { return value.leftJustified(width, ' ', true); };
    return field(server, 100) + field("QD7MON", 30) + field(password, 30) + field(sid, 3) + field(client, 3)
        + field(instance, 2) + "000000240000E\r\n";
}

inline QStringList items(ListBox* list)
{
    QStringList texts;
    for (int i = 0; i < list->ListCount(); ++i)
        texts << list->List(i);
    return texts;
}

inline QString status()
{
    return MDIMainForm->staMainStatusBar->currentMessage();
}
