#include "server_checks.h"

#include "platform/numeric.h"
#include "platform/text.h"
#include "server_record.h"
#include "shell/shared_state.h"

QString HostPart(const QString& server)
{
    return server.mid(server.lastIndexOf(QLatin1Char('/')) + 1);
}

bool IsFullyQualified(const QString& server)
{
    QString host = HostPart(server);
    if (!host.contains(QLatin1Char('.')))
        return false;
    return !Numeric::isNumeric(host.remove(QLatin1Char('.')));
}

int DuplicateServerRow(
    int row, const QString& server, const QString& sid, const QString& client, const QString& instance)
{
    using Text::Trim;
    using Text::UCase;
    const QString wantedServer = UCase(Trim(server));
    const QString wantedSid = UCase(Trim(sid));
    const QString wantedClient = Trim(client);
    const QString wantedInstance = Trim(instance);
    for (int i = 1; i <= ServerCount; ++i) {
        const bool twin = UCase(Trim(ServerTable(i, ServerColumn::Server))) == wantedServer
            && UCase(Trim(ServerTable(i, ServerColumn::SID))) == wantedSid
            && Trim(ServerTable(i, ServerColumn::Client)) == wantedClient
            && Trim(ServerTable(i, ServerColumn::Instance)) == wantedInstance;
        if (twin && (row == 0 || (row > 0 && i != row)))
            return i;
    }
    return 0;
}
