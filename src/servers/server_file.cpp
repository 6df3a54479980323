#include "server_file.h"

#include "platform/clock.h"
#include "platform/file_system.h"
#include "platform/record_file.h"
#include "platform/runtime_error.h"
#include "server_record.h"
#include "shell/shared_state.h"

#include <QHash>

namespace {

int clockAsHhmmss()
{
    const QTime time = Clock::now().time();
    return time.hour() * 10000 + time.minute() * 100 + time.second();
}

// What a failed save leaves, in the words of the last box.
QString whatIsLeft(bool deleted, bool backedUp)
{
    if (!deleted)
        return QStringLiteral("The server file was not changed.");
    if (backedUp)
        return QStringLiteral("The server file is missing or incomplete; the servers it held are in %1.")
            .arg(ServerBackupPath());
    return QStringLiteral("The server file is missing or incomplete.");
}

} // namespace

QString DefaultServerFilePath()
{
    return BinDir + QStringLiteral("/qd7server.dat");
}

QString ServerBackupPath()
{
    return BinDir + QStringLiteral("/qd7server.bak");
}

void WaitForSeconds(int seconds)
{
    const int until = clockAsHhmmss() + seconds;
    while (clockAsHhmmss() < until) { }
}

QList<int> RowsForEntries(const QStringList& entries)
{
    // The first row of each entry, found once: a walk per entry would be quadratic in the servers.
    QHash<QString, int> firstRow;
    firstRow.reserve(ServerCount);
    for (int row = ServerCount; row >= 1; --row)
        firstRow.insert(ServerRowEntry(ServerTable, row), row); // the first row is inserted last
    QList<int> rows;
    rows.reserve(entries.size());
    for (const QString& entry : entries) {
        const auto found = firstRow.constFind(entry);
        if (found != firstRow.constEnd())
            rows << found.value();
    }
    return rows;
}

void SaveServerFile(const QString& path, const QList<int>& rows)
{
    bool backedUp = false;
    bool deleted = false;
    try {
        if (fileExists(path)) {
            copyFile(path, ServerBackupPath());
            backedUp = true;
            deleteFile(path);
        }
        deleted = true; // from here on the file at path is the new one, however far it got
        RecordFile file(path, ServerRecordBuffer::Length);
        qint64 number = 1;
        for (int row : rows) {
            ServerRecord = RecordFromRow(ServerTable, row);
            file.write(number++, ServerRecord.toBytes());
        }
        file.close();
    } catch (RuntimeError& error) {
        error.Context = QStringLiteral("Saving the server list failed: %1.\n%2")
                            .arg(error.Context, whatIsLeft(deleted, backedUp));
        throw;
    }
}
