#include "text_table.h"

#include "platform/runtime_error.h"

void TextTable::redim(int lastRow, int lastColumn)
{
    if (lastRow < 0 || lastColumn < 0)
        throw RuntimeError(RuntimeError::SubscriptOutOfRange, QStringLiteral("Sizing a table"));
    m_columns = lastColumn + 1;
    m_cells = QList<QString>(qsizetype(lastRow + 1) * m_columns);
}

void TextTable::redimPreserve(int lastRow)
{
    if (lastRow < 0 || !isSized())
        throw RuntimeError(RuntimeError::SubscriptOutOfRange, QStringLiteral("Sizing a table"));
    m_cells.resize(qsizetype(lastRow + 1) * m_columns);
}

qsizetype TextTable::index(int row, int column) const
{
    if (row < 0 || column < 0 || column >= m_columns || row > lastRow())
        throw RuntimeError(RuntimeError::SubscriptOutOfRange,
            QStringLiteral("Reading row %1, column %2 of a table").arg(row).arg(column));
    return qsizetype(row) * m_columns + column;
}

QString& TextTable::operator()(int row, int column)
{
    return m_cells[index(row, column)];
}

const QString& TextTable::operator()(int row, int column) const
{
    return m_cells[index(row, column)];
}
