#include "server_lists.h"

#include "frmServers.h"
#include "platform/forms/list_box.h"
#include "platform/numeric.h"
#include "platform/record_file.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "server_file.h"
#include "server_record.h"
#include "settings/registry_values.h"
#include "shell/frmCurrentConfig.h"
#include "shell/message_boxes.h"
#include "shell/page_frame.h"
#include "shell/shared_state.h"
#include "specialrun/frmSpecRun.h"

#include <QSet>

#include <limits>
#include <utility>

namespace {

const QString ServerPageCaller = QStringLiteral("frmServers");
const QString StartPageCaller = QStringLiteral("frmCurrentConfig");

// Where the entries of one load go. They are gathered and added to each list in one step: a list
// filled item by item would take most of a load's time.
class ServerListTargets
{
public:
    explicit ServerListTargets(const QString& caller)
        : m_serverPage(caller == ServerPageCaller)
    {
        if (!m_serverPage) {
            ListBox* chosen = frmSpecRun->lstSvrsToAgg;
            for (int i = 0; i < chosen->ListCount(); ++i)
                m_chosen.insert(chosen->List(i));
        }
    }

    void add(const QString& server, const QString& instance)
    {
        const QString entry = ServerEntry(server, instance);
        if (m_serverPage) {
            m_serverEntries << entry;
            return;
        }
        m_names << Text::Trim(server);
        if (!m_chosen.contains(entry))
            m_available << entry;
        m_walked = true;
    }

    // Adds what was gathered; a load that fails on the way lists what it read.
    void flush()
    {
        if (m_serverPage) {
            if (!m_serverEntries.isEmpty())
                frmServers->lstServer->AddItems(std::exchange(m_serverEntries, {}));
            return;
        }
        if (!std::exchange(m_walked, false))
            return;
        frmCurrentConfig->lstServers->AddItems(std::exchange(m_names, {}));
        frmSpecRun->lstServers->AddItems(std::exchange(m_available, {}));
        // each entry was compared by walking lstSvrsToAgg row by row, which leaves its last row
        // selected: the same end, reached once
        ListBox* chosen = frmSpecRun->lstSvrsToAgg;
        if (chosen->ListCount() > 0)
            chosen->SetListIndex(chosen->ListCount() - 1);
    }

private:
    bool m_serverPage;
    bool m_walked = false;
    QSet<QString> m_chosen;
    QStringList m_serverEntries;
    QStringList m_names;
    QStringList m_available;
};

// Sizes ServerTable afresh for the records of a file, dropping its rows. More records than the
// 16-bit count holds is error 6, with ServerCount as it was; the table then keeps only the rows
// that count can still reach, empty.
void sizeServerTable(qint64 fileLength)
{
    const double records = Numeric::roundHalfEven(double(fileLength) / ServerRecordBuffer::Length);
    if (records > std::numeric_limits<qint16>::max()) {
        ServerTable.redim(qMax(0, int(ServerCount)), ServerColumn::Last);
        throw RuntimeError(
            RuntimeError::Overflow, QStringLiteral("Counting %1 records of the server file").arg(records, 0, 'f', 0));
    }
    ServerTable.redim(int(records), ServerColumn::Last);
    ServerCount = qint16(records);
}

void reportHeldFile(const QString& caller)
{
    WaitForSeconds(1);
    if (caller != StartPageCaller)
        ShowMessageBox(1437);
    ShowStatus(1446);
    // the page must not be used on a table that was not read
    frmServers->lstServer->SetEnabled(false);
}

} // namespace

void LoadServerFile(const QString& caller)
{
    ShowStatus(1449);
    const QString path = ServerFilePath.isEmpty() ? ReadRegValue(QStringLiteral("StatiInput")) : ServerFilePath;
    ServerListTargets targets(caller);
    try {
        RecordFile file(path, ServerRecordBuffer::Length, RecordFile::Access::Read);
        sizeServerTable(file.length());
        frmSpecRun->lstServers->Clear();
        for (int row = 1; row <= ServerCount; ++row) {
            ServerRecord = ServerRecordBuffer::fromBytes(file.read(row));
            targets.add(ServerRecord.Server, ServerRecord.Instance);
            PutRecordInRow(ServerRecord, ServerTable, row);
        }
        targets.flush();
        file.close();
        frmServers->lstServer->SetEnabled(true);
    } catch (const RuntimeError& error) {
        targets.flush();
        if (error.Number == RuntimeError::PermissionDenied)
            reportHeldFile(caller);
        // anything else: the load just ends, the table as far as it got
    }
}

void FillServerList(const QString& caller)
{
    ShowStatus(1449);
    frmSpecRun->lstServers->Clear();
    ServerListTargets targets(caller);
    for (int row = 1; row <= ServerCount; ++row)
        targets.add(ServerTable(row, ServerColumn::Server), ServerTable(row, ServerColumn::Instance));
    targets.flush();
    frmServers->lstServer->SetEnabled(true);
}
