#include "exclusion_files.h"

#include "platform/file_system.h"
#include "platform/record_file.h"
#include "platform/text.h"
#include "shell/shared_state.h"

namespace ExclusionFiles {
const ExclusionFile IDs { "qd7IDsToIgnore.dat", "qd7IDsToIgnore.bak", 12 };
const ExclusionFile Programs { "qd7ProgsToIgnore.dat", "qd7ProgsToIgnore.bak", 30 };
const ExclusionFile Transactions { "qd7TransToIgnore.dat", "qd7TransToIgnore.bak", 20 };
} // namespace ExclusionFiles

QString ExclusionFile::path() const
{
    return BinDir + QLatin1Char('/') + QLatin1String(name);
}

QString ExclusionFile::backupPath() const
{
    return BinDir + QLatin1Char('/') + QLatin1String(backupName);
}

void ReadExclusionEntries(const ExclusionFile& file, const std::function<void(const QString&)>& add)
{
    const QString path = file.path();
    if (!fileExists(path))
        return;
    RecordFile records(path, file.recordLength(), RecordFile::Access::Read);
    const qint16 count = records.recordCount();
    for (int record = 1; record <= count; ++record)
        add(Text::Trim(Text::fromLatin1Bytes(records.read(record).left(file.width))));
    records.close();
}

QString ExclusionLine(const QString& entry, int width)
{
    return Text::UCase(entry) + Text::Space(width - Text::Trim(entry).size());
}
