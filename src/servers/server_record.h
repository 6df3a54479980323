#pragma once

#include <QByteArray>
#include <QString>

class TextTable;

// One record of the server file, byte for byte (docs/data-files.md): 183 bytes of ISO-8859-1
// text, nine fields left-aligned and blank-filled, and CR LF. A value longer than its field is cut.
struct ServerRecordBuffer
{
    static constexpr int ServerWidth = 100;
    static constexpr int IdWidth = 30;
    static constexpr int PasswordWidth = 30;
    static constexpr int SidWidth = 3;
    static constexpr int ClientWidth = 3;
    static constexpr int InstanceWidth = 2;
    static constexpr int WindowWidth = 6;
    static constexpr int LanguageWidth = 1;
    static constexpr int Length = 183;

    QString Server;
    QString ID;
    QString Password; // enciphered, never the clear password
    QString SID;
    QString Client;
    QString Instance;
    QString WindowStart;
    QString WindowEnd;
    QString Language;

    // The 183 bytes to write, line end included.
    QByteArray toBytes() const;
    // The fields as read, padding included; a short last record gives short or empty fields.
    static ServerRecordBuffer fromBytes(const QByteArray& bytes);
};

// The columns of ServerTable; column 0 stays unused.
namespace ServerColumn {
constexpr int Server = 1;
constexpr int ID = 2;
constexpr int Password = 3;
constexpr int SID = 4;
constexpr int Client = 5;
constexpr int Instance = 6;
constexpr int WindowStart = 7;
constexpr int WindowEnd = 8;
constexpr int Language = 9;
constexpr int Last = 9;
} // namespace ServerColumn

// The nine fields into columns 1 to 9 of a row, padding and all, and back.
void PutRecordInRow(const ServerRecordBuffer& record, TextTable& table, int row);
ServerRecordBuffer RecordFromRow(const TextTable& table, int row);

// The text by which a server stands in lists and by which rows are matched: trimmed server, one
// blank, trimmed instance ("sap1.corp 00"). Not unique: SID and client may tell two rows apart.
QString ServerEntry(const QString& server, const QString& instance);
QString ServerRowEntry(const TextTable& table, int row);

// The logon languages in the order of the editor's list, whose texts are catalogue ids 1474 on.
namespace ServerLanguage {
constexpr int Count = 10;
constexpr int FirstTextId = 1474;
// The letter at a list position, or "" outside the list.
QString letter(int listIndex);
// The list position of a letter, or -1 for a letter outside the list.
int listIndex(const QString& letter);
} // namespace ServerLanguage
