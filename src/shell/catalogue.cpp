#include "catalogue.h"

#include "shared_state.h"

#include <QHash>

namespace Catalogue {
namespace {

const QHash<int, QString>& builtInTable()
{
    static const QHash<int, QString> table = {
        { 1400, QStringLiteral("Orvanta Monitor, Version 5.1.0 - Vantrel") },
        { 1402, QStringLiteral("KQM7001E Error encountered ") },
        { 1403, QStringLiteral("KQM7002E  Error number = ") },
        { 1447, QStringLiteral("KQM7045E Decryption returned a null string") },
        { 1448, QStringLiteral("KQM7046E Encryption returned a null string") },
        { 1452, QStringLiteral("KQM7049I Orvanta Monitor 5.1.0 - Vantrel") },
        { 1453, QStringLiteral("KQM7050E Status: Action failed") },
        { 1454, QStringLiteral("KQM7051I Status: Ready") },
        { 1455, QStringLiteral("KQM7052I Action successful") },
        { 1457, QStringLiteral("KQM7054W Action cancelled") },
        { 1458, QStringLiteral("KQM7055E Registry Error: Corrupt registry database") },
        { 1459, QStringLiteral("KQM7056E Registry Error: Key name is bad") },
        { 1460, QStringLiteral("KQM7057E Registry Error: Unable to open key") },
        { 1461, QStringLiteral("KQM7058E Registry Error: Unable to read key") },
        { 1462, QStringLiteral("KQM7059E Registry Error: Unable to write key") },
        { 1463, QStringLiteral("KQM7060E Registry Error: Out of memory") },
        { 1464, QStringLiteral("KQM7061E Registry Error: Registry access is denied") },
        { 1465, QStringLiteral("KQM7062E Registry Error: Invalid parameters") },
        { 1466, QStringLiteral("KQM7063E Registry Error: No more items") },
    };
    return table;
}

} // namespace

QString builtInText(int id)
{
    return builtInTable().value(id);
}

QString text(int id)
{
    return builtInText(id);
}

} // namespace Catalogue

void LoadMsgText(int id)
{
    MsgText = Catalogue::text(id);
    LastStringLength = qint32(MsgText.size());
}

void LoadMsgTitle(int id)
{
    MsgTitle = Catalogue::text(id);
    LastStringLength = qint32(MsgTitle.size());
}
