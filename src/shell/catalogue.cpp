#include "catalogue.h"

#include "shared_state.h"

#include <QTranslator>

#include <algorithm>
#include <iterator>

namespace Catalogue {
namespace {

struct Entry
{
    int id;
    const char* text; // UTF-8; trailing blanks belong to the text
};

// The built-in English catalogue, ascending by id; the gaps are ids without a text.
// clang-format off
constexpr Entry BuiltIn[] = {
    { 1000, "&File" },
    { 1001, "&Logs and traces" },
    { 1002, "&Options" },
    { 1003, "&Help" },
    { 1004, "E&xit" },
    { 1005, "&1 Statistics log" },
    { 1006, "&2 Indicator log" },
    { 1008, "&3 Statistics collection trace" },
    { 1009, "&4 Indicator collection trace" },
    { 1011, "&5 Statistics load trace" },
    { 1012, "&6 Indicator load trace" },
    { 1014, "&7 Statistics aggregation trace" },
    { 1015, "&8 Indicator aggregation trace" },
    { 1017, "&9 Database load settings trace" },
    { 1018, "&Current configuration" },
    { 1019, "&Initial configuration" },
    { 1020, "&Repository database" },
    { 1021, "&Server" },
    { 1022, "Repository &database retention period" },
    { 1023, "&Report configuration" },
    { 1024, "&Programs to exclude" },
    { 1025, "&IDs to exclude" },
    { 1026, "&Transactions to exclude" },
    { 1027, "&Service level agreement" },
    { 1028, "&Application SLA" },
    { 1029, "All &transaction SLA" },
    { 1030, "Sc&hedule" },
    { 1031, "Schedule &statistics" },
    { 1032, "Schedule &indicator" },
    { 1033, "S&pecial run" },
    { 1034, "&Debug" },
    { 1035, "&Generate debug trace files" },
    { 1036, "&Halt execution of loader" },
    { 1037, "&Contents" },
    { 1038, "&Search" },
    { 1039, "A&bout" },
    { 1041, "Align right" },
    { 1100, "Current configuration" },
    { 1101, "Data source" },
    { 1102, "Current configuration" },
    { 1103, "Data collection servers" },
    { 1104, "Parameters to be excluded from the reports" },
    { 1105, "Programs to exclude" },
    { 1106, "IDs to exclude" },
    { 1107, "Transactions to exclude" },
    { 1108, "Initial configuration" },
    { 1109, "Report configuration" },
    { 1110, "Service level agreement" },
    { 1111, "Schedule" },
    { 1112, "Logs and traces" },
    { 1113, "Repository database" },
    { 1114, "Server" },
    { 1115, "Repository database retention period" },
    { 1116, "Programs to exclude" },
    { 1117, "IDs to exclude" },
    { 1118, "Transactions to exclude" },
    { 1119, "Application SLA" },
    { 1120, "All transaction SLA" },
    { 1121, "Schedule statistics" },
    { 1122, "Schedule indicator" },
    { 1123, "Statistics log" },
    { 1124, "Indicator log" },
    { 1126, "Statistics collection trace" },
    { 1127, "Indicator collection trace" },
    { 1129, "Statistics load trace" },
    { 1130, "Indicator load trace" },
    { 1132, "Statistics aggregation trace" },
    { 1133, "Indicator aggregation trace" },
    { 1135, "Database load settings trace" },
    { 1136, "Special run" },
    { 1200, "OK" },
    { 1201, "Cancel" },
    { 1202, "&Create" },
    { 1203, "&Edit" },
    { 1204, "&Delete" },
    { 1205, "Add" },
    { 1206, "Edit" },
    { 1207, "Delete" },
    { 1208, "&Add" },
    { 1300, "Add/Edit application name" },
    { 1301, "&Application" },
    { 1302, "S&LA in seconds" },
    { 1303, "Add/edit application transactions" },
    { 1304, "Use this dialog to add/edit transactions in your customized group of transactions. To add multiple transactions at once use a comma to separate the transaction codes." },
    { 1305, "Exclude user ID" },
    { 1306, "User ID to exclude from reports" },
    { 1307, "Exclude programs" },
    { 1308, "Program to exclude" },
    { 1309, "Target server selection" },
    { 1310, "ID" },
    { 1311, "Password" },
    { 1312, "Language" },
    { 1313, "SID" },
    { 1314, "Instance #" },
    { 1315, "Client #" },
    { 1316, "Schedule statistics collection/aggregation" },
    { 1317, "Enter the time in a 24 hour clock format. These times reflect the time in which statistic records will be collected." },
    { 1318, "Time: HH:M&M" },
    { 1319, "Exclude transactions" },
    { 1320, "Transaction to exclude" },
    { 1321, "Orvanta Monitor, Version 5.1.0 - Vantrel repository database" },
    { 1322, "&Data source" },
    { 1323, "&User ID" },
    { 1324, "&Password" },
    { 1325, "Database t&ype" },
    { 1326, "Exclude IDs" },
    { 1327, "Add the IDs you would like to exclude from the reports by clicking on the create button or remove IDs from this list to have them included in the reports" },
    { 1328, "or remove IDs from this list to have them included in the reports" },
    { 1329, "&IDs to exclude" },
    { 1330, "Use the repository database option to configure the R/3 repository Database Server. Use the Server option to configure R/3  servers for data retrieval." },
    { 1331, "Orvanta Monitor 5.1.0 - Vantrel allows custom configuration as to the duration at which data will be kept in the repository data base." },
    { 1332, "&Enter repository database retention period in days" },
    { 1333, "Enter the programs you would like to exclude from the reports or remove programs from this list to have them included in the reports" },
    { 1335, "&Programs to exclude" },
    { 1336, "Use this section to configure options for filtering data retrieved. Programs to exclude allows you to remove programs from the daily aggregation. IDs to exclude allows you to remove IDs from the daily aggregation. Transactions to exclude allows for removal of transactions from the daily aggregation." },
    { 1337, "Schedule configuration" },
    { 1338, "Use the schedule statistics option to schedule when the collection of statistic records will occur. Use the schedule indicator option to configure the days of the week to collect application server performance data and to set the polling interval" },
    { 1339, "Schedule statistics collection/aggregation" },
    { 1340, "Sched&uled runs" },
    { 1341, "Target server selection" },
    { 1342, "The following list box displays all R/3 application servers in which data will be collected" },
    { 1343, "List of &R/3 application servers" },
    { 1344, "The service level agreement dialogs allow the user to create a custom group and assign a SLA to that group. It also allows the user to assign transactions to the customized group." },
    { 1345, "Collection service configuration" },
    { 1346, "Select days of the week to collect operating system statistics:" },
    { 1347, "&Monday" },
    { 1348, "&Tuesday" },
    { 1349, "&Wednesday" },
    { 1350, "T&hursday" },
    { 1351, "F&riday" },
    { 1352, "&Saturday" },
    { 1353, "S&unday" },
    { 1354, "Polling &interval (Seconds)" },
    { 1355, "S&tart date (yyyymmdd)" },
    { 1356, "Sta&rt time (hhmmss)" },
    { 1357, "E&nd date (yyyymmdd)" },
    { 1358, "End t&ime (hhmmss)" },
    { 1359, "&Available servers" },
    { 1360, "&Selected servers" },
    { 1361, "All transaction SLA" },
    { 1362, "Use this field to enter the target SLA in seconds for your systems. This will be reflected in the SLA views with a group name of all transactions." },
    { 1363, "&Enter SLA in seconds" },
    { 1364, "A&pplication" },
    { 1365, "S&LA in seconds" },
    { 1366, "&Transactions" },
    { 1367, "Exclude transactions" },
    { 1368, "Enter the transactions you would like to exclude from the reports or remove Transactions from this list to have them included in the reports" },
    { 1369, "NVS &instance" },
    { 1400, "Orvanta Monitor, Version 5.1.0 - Vantrel" },
    { 1401, "KQM7000W Potential loss of data or data duplication may occur. Continue?" },
    { 1402, "KQM7001E Error encountered " },
    { 1403, "KQM7002E  Error number = " },
    { 1405, "KQM7004W IDs have a maximum length of 12 characters" },
    { 1406, "KQM7005W Programs have a maximum length of 30 characters" },
    { 1407, "KQM7006W Transaction codes have a maximum length of 20 characters" },
    { 1408, "KQM7007E Start date is invalid. Format is 'yyyymmdd'. Cannot be greater than current date and must be 8 digits." },
    { 1409, "KQM7008E Start time is invalid. Format is 'hhmmss'. Cannot be greater than current time and must be 6 digits." },
    { 1410, "KQM7009E End date is invalid. Format is 'yyyymmdd'. Cannot be greater than current date and must be 8 digits." },
    { 1411, "KQM7010E End time is invalid. Format is 'hhmmss'. Cannot be greater than current time and must be 6 digits." },
    { 1412, "KQM7011E Duplicate application groups not allowed" },
    { 1413, "KQM7012E Sleep interval must be between 1 and 1800 seconds" },
    { 1414, "KQM7013E Interval is incorrect" },
    { 1415, "KQM7014E Duplicate time entered" },
    { 1416, "KQM7015E Time is invalid" },
    { 1417, "KQM7016E Maximum number of entries exceeded" },
    { 1418, "KQM7017E Only whole numbers are permitted" },
    { 1419, "KQM7018E The number of days to maintain Hourly summary data must be between 15 and 365 days" },
    { 1420, "KQM7019E The number of days to maintain data in the database must be numeric" },
    { 1421, "KQM7019W Value to add not found" },
    { 1422, "KQM7020W Value to update not found" },
    { 1423, "KQM7021E Service level agreement number of seconds must be numeric and greater than 0.1 and less than 10 seconds" },
    { 1424, "KQM7022E Duplicate ID entered" },
    { 1425, "KQM7023E Duplicate program entered" },
    { 1426, "KQM7024E Duplicate transaction entered" },
    { 1427, "KQM7025E Duplicate servers not allowed" },
    { 1428, "KQM7026E You must enter a server" },
    { 1429, "KQM7027E You must enter an ID" },
    { 1430, "KQM7028E You must enter a password" },
    { 1431, "KQM7029E You must enter a SID" },
    { 1432, "KQM7030E You must enter an instance number" },
    { 1433, "KQM7031E Instance number must be numeric" },
    { 1434, "KQM7032E Instance number must be greater than or equal to zero" },
    { 1435, "KQM7033E You must enter a client number" },
    { 1436, "KQM7034E Client number must be numeric" },
    { 1437, "KQM7035E Cannot open file, another process has locked it" },
    { 1438, "KQM7036E Error processing special run." },
    { 1439, "KQM7037E Required file not found, NVS client component nvscmd.exe not installed or is not in the path. Please refer to the release notes " },
    { 1440, "KQM7038E Database type must be selected" },
    { 1441, "KQM7039E End date must be greater than or equal to start date" },
    { 1442, "KQM7040E No servers selected for special run" },
    { 1443, "KQM7041E Start time cannot be greater than end time and same day run" },
    { 1444, "KQM7042E Special run already running" },
    { 1445, "KQM7043W Log does not exist" },
    { 1446, "KQM7044E Server data file is locked by another process." },
    { 1447, "KQM7045E Decryption returned a null string" },
    { 1448, "KQM7046E Encryption returned a null string" },
    { 1449, "KQM7047W Loading server data" },
    { 1450, "KQM7048I Status: Running" },
    { 1451, "KQM7049I Status: Submitted" },
    { 1452, "KQM7049I Orvanta Monitor 5.1.0 - Vantrel" },
    { 1453, "KQM7050E Status: Action failed" },
    { 1454, "KQM7051I Status: Ready" },
    { 1455, "KQM7052I Action successful" },
    { 1456, "KQM7053W No value set" },
    { 1457, "KQM7054W Action cancelled" },
    { 1458, "KQM7055E Registry Error: Corrupt registry database" },
    { 1459, "KQM7056E Registry Error: Key name is bad" },
    { 1460, "KQM7057E Registry Error: Unable to open key" },
    { 1461, "KQM7058E Registry Error: Unable to read key" },
    { 1462, "KQM7059E Registry Error: Unable to write key" },
    { 1463, "KQM7060E Registry Error: Out of memory" },
    { 1464, "KQM7061E Registry Error: Registry access is denied" },
    { 1465, "KQM7062E Registry Error: Invalid parameters" },
    { 1466, "KQM7063E Registry Error: No more items" },
    { 1467, "KQM7064E Required file not found, Oracle client component sqlldr73.exe not installed or is not in the path. Please refer to the release notes " },
    { 1468, "KQM7065E Required file not found, Oracle client component sqlldr80.exe not installed or is not in the path. Please refer to the release notes " },
    { 1469, "KQM7066E Required file not found, Oracle client component sqlldr.exe not installed or is not in the path. Please refer to the release notes " },
    { 1470, "KQM7067E Required file not found, MS Sql client component isql.exe not installed or is not in the path. Please refer to the release notes " },
    { 1471, "KQM7068E Required file not found, Sybase client component isql.exe not installed or is not in the path. Please refer to the release notes " },
    { 1472, "KQM7069E Required file not found, Tessaril client component sqleditor300.exe not installed or is not in the path. Please refer to the release notes " },
    { 1473, "KQM7070E This file will need to be deleted manually." },
    { 1474, "English" },
    { 1475, "German" },
    { 1476, "Japanese" },
    { 1477, "French" },
    { 1478, "Italian" },
    { 1479, "Spanish" },
    { 1480, "Portuguese" },
    { 1481, "Korean" },
    { 1482, "Simplified Chinese" },
    { 1483, "Traditional Chinese" },
    { 1484, "Scheduled run" },
    { 1485, "(C) Copyright Vantrel 2026" },
    { 1486, "KQM7070E Status: Error" },
    { 1487, "KQM7071I Not a standard SAP transaction code. Would you still like to add it?" },
    { 1488, "Orvanta Monitor, Version 5.1.0 - Vantrel auto loader started" },
    { 1489, "Batch run start date" },
    { 1490, "Batch run start time" },
    { 1491, "Batch run end date" },
    { 1492, "Batch run end time" },
    { 1493, "Collection of statistic records has ended" },
    { 1494, "Loading of statistics records has started" },
    { 1495, "Loading of statistics records has ended" },
    { 1496, "Aggregation of statistics records has started" },
    { 1497, "Aggregation of statistics records has ended" },
    { 1498, "Orvanta Monitor, Version 5.1.0 - Vantrel Collection Ended" },
    { 1499, "Loading of snap records has started" },
    { 1500, "Loading of snap records has ended" },
    { 1501, "Aggregation of snap records has started" },
    { 1502, "Aggregation of snap records has ended" },
    { 1503, "KQM7072E Application server must be fully qualified" },
    { 1504, "KQM7073E Wrong application server file selected. Must select qd7server.dat" },
    { 1505, "Network location of application server file" },
    { 1506, "Location of networked application server file" },
    { 1507, "File location" },
    { 1508, "Default" },
    { 1509, "Drive" },
    { 1510, "Folder" },
    { 1511, "File" },
    { 1512, "All Transactions" },
    { 1513, "Not known" },
    { 1514, "KQM7074E Illegal character entered, single quote not allowed." },
};
// clang-format on

static_assert(std::ranges::adjacent_find(BuiltIn, std::ranges::greater_equal {}, &Entry::id) == std::end(BuiltIn),
    "the lookup searches by halves: ids ascending, each once");

const Entry* find(int id)
{
    const Entry* entry = std::ranges::lower_bound(BuiltIn, id, {}, &Entry::id);
    return entry != std::end(BuiltIn) && entry->id == id ? entry : nullptr;
}

} // namespace

QString builtInText(int id)
{
    const Entry* entry = find(id);
    return entry ? QString::fromUtf8(entry->text) : QString();
}

QList<int> builtInIds()
{
    QList<int> ids;
    ids.reserve(std::size(BuiltIn));
    for (const Entry& entry : BuiltIn)
        ids.append(entry.id);
    return ids;
}

QString text(int id)
{
    const Entry* entry = find(id);
    if (!entry)
        return QString();
    if (!ResourceLibrary)
        return QString::fromUtf8(entry->text);
    // a library that lacks the id gives "", never the English text
    return ResourceLibrary->translate(Context, entry->text, QByteArray::number(id).constData());
}

} // namespace Catalogue

namespace {

void load(QString& buffer, int id)
{
    if (id < 1) {
        LastStringLength = 0;
        return;
    }
    // the text ends where the buffer's terminator would stand
    buffer = Catalogue::text(id).left(Catalogue::BufferLength - 1);
    LastStringLength = qint32(buffer.size());
}

} // namespace

void LoadMsgText(int id)
{
    load(MsgText, id);
}

void LoadMsgTitle(int id)
{
    load(MsgTitle, id);
}
