#include "group_files.h"

#include "platform/file_system.h"
#include "platform/forms/hourglass.h"
#include "platform/record_file.h"
#include "platform/text.h"
#include "shell/shared_state.h"

namespace {

constexpr int NameColumn = 1;
constexpr int ValueColumn = 2;
constexpr int LastColumn = 2;

// The row where a group of this name goes: its first empty row, or 0 when a row already holds the
// name. A blank name equals the first empty row and is dropped, as duplicates are.
int rowForGroup(const QString& name)
{
    for (int row = 1; row <= AppGroupCount; ++row) {
        const QString& held = AppGroupTable(row, NameColumn);
        if (held == name)
            return 0;
        if (held.isEmpty())
            return row;
    }
    return 0;
}

} // namespace

QString AppGroupFilePath()
{
    return BinDir + QStringLiteral("/qd7AppGroup.dat");
}

QString TransGroupFilePath()
{
    return BinDir + QStringLiteral("/qd7TransGroup.dat");
}

QString AppGroupWorkFilePath()
{
    return BinDir + QStringLiteral("/qd7AppGroup.new");
}

QString TransGroupWorkFilePath()
{
    return BinDir + QStringLiteral("/qd7TransGroup.new");
}

void LoadAppGroups()
{
    const QString path = AppGroupFilePath();
    if (!fileExists(path))
        return;
    RecordFile file(path, AppGroupRecordBuffer::Length, RecordFile::Access::Read);
    const qint16 count = file.recordCount();
    AppGroupTable.redim(count, LastColumn);
    AppGroupCount = count;
    for (int record = 1; record <= count; ++record) {
        AppGroupRecord = AppGroupRecordBuffer::fromBytes(file.read(record));
        const QString name = Text::Trim(AppGroupRecord.Name);
        if (const int row = rowForGroup(name)) {
            AppGroupTable(row, NameColumn) = name;
            AppGroupTable(row, ValueColumn) = Text::Trim(AppGroupRecord.Target);
        }
    }
    file.close();
}

void LoadTransGroups()
{
    Hourglass::set(true);
    const QString path = TransGroupFilePath();
    if (!fileExists(path)) {
        TransGroupCount = 0;
    } else {
        RecordFile file(path, TransGroupRecordBuffer::Length, RecordFile::Access::Read);
        const qint16 count = file.recordCount();
        TransGroupTable.redim(count, LastColumn);
        for (int record = 1; record <= count; ++record) {
            TransGroupRecord = TransGroupRecordBuffer::fromBytes(file.read(record));
            TransGroupTable(record, NameColumn) = Text::Trim(TransGroupRecord.Name);
            TransGroupTable(record, ValueColumn) = Text::Trim(TransGroupRecord.Code);
        }
        file.close();
        TransGroupCount = count;
    }
    Hourglass::set(false);
}
