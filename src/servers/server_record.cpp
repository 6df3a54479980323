#include "server_record.h"

#include "platform/text.h"
#include "shell/text_table.h"

#include <array>

namespace {

struct Field
{
    QString ServerRecordBuffer::*member;
    int width;
    int column;
};

// In the order of the record.
constexpr std::array<Field, 9> Fields = { {
    { &ServerRecordBuffer::Server, ServerRecordBuffer::ServerWidth, ServerColumn::Server },
    { &ServerRecordBuffer::ID, ServerRecordBuffer::IdWidth, ServerColumn::ID },
    { &ServerRecordBuffer::Password, ServerRecordBuffer::PasswordWidth, ServerColumn::Password },
    { &ServerRecordBuffer::SID, ServerRecordBuffer::SidWidth, ServerColumn::SID },
    { &ServerRecordBuffer::Client, ServerRecordBuffer::ClientWidth, ServerColumn::Client },
    { &ServerRecordBuffer::Instance, ServerRecordBuffer::InstanceWidth, ServerColumn::Instance },
    { &ServerRecordBuffer::WindowStart, ServerRecordBuffer::WindowWidth, ServerColumn::WindowStart },
    { &ServerRecordBuffer::WindowEnd, ServerRecordBuffer::WindowWidth, ServerColumn::WindowEnd },
    { &ServerRecordBuffer::Language, ServerRecordBuffer::LanguageWidth, ServerColumn::Language },
} };

const QByteArray LineEnd("\r\n");

// "T" with Simplified and "C" with Traditional Chinese, as the collectors expect them.
const QString LanguageLetters = QStringLiteral("EDJFISPKTC");

} // namespace

QByteArray ServerRecordBuffer::toBytes() const
{
    QString text;
    text.reserve(Length);
    for (const Field& field : Fields)
        text += Text::fixedField(this->*field.member, field.width);
    return Text::toLatin1Bytes(text) + LineEnd;
}

ServerRecordBuffer ServerRecordBuffer::fromBytes(const QByteArray& bytes)
{
    ServerRecordBuffer record;
    qsizetype offset = 0;
    for (const Field& field : Fields) {
        record.*field.member = Text::fromLatin1Bytes(bytes.mid(offset, field.width));
        offset += field.width;
    }
    return record;
}

void PutRecordInRow(const ServerRecordBuffer& record, TextTable& table, int row)
{
    for (const Field& field : Fields)
        table(row, field.column) = record.*field.member;
}

ServerRecordBuffer RecordFromRow(const TextTable& table, int row)
{
    ServerRecordBuffer record;
    for (const Field& field : Fields)
        record.*field.member = table(row, field.column);
    return record;
}

QString ServerEntry(const QString& server, const QString& instance)
{
    const QStringView name = Text::TrimView(server);
    const QStringView number = Text::TrimView(instance);
    QString entry;
    entry.reserve(name.size() + 1 + number.size());
    entry.append(name).append(QLatin1Char(' ')).append(number);
    return entry;
}

QString ServerRowEntry(const TextTable& table, int row)
{
    return ServerEntry(table(row, ServerColumn::Server), table(row, ServerColumn::Instance));
}

namespace ServerLanguage {

QString letter(int listIndex)
{
    if (listIndex < 0 || listIndex >= Count)
        return QString();
    return LanguageLetters.mid(listIndex, 1);
}

int listIndex(const QString& letter)
{
    if (letter.size() != 1)
        return -1;
    return int(LanguageLetters.indexOf(letter));
}

} // namespace ServerLanguage
