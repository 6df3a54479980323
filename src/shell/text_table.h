#pragma once

#include <QList>
#include <QString>

// A two-dimensional table of texts, rows 0 to lastRow and columns 0 to lastColumn, as the shared
// tables of servers and groups are kept. A subscript outside the table is error 9.
class TextTable
{
public:
    // Sizes the table afresh, every cell empty.
    void redim(int lastRow, int lastColumn);
    // Changes the number of rows and keeps what the remaining rows hold.
    void redimPreserve(int lastRow);

    bool isSized() const { return m_columns > 0; }
    int lastRow() const { return int(m_cells.size()) / qMax(1, m_columns) - 1; }
    int lastColumn() const { return m_columns - 1; }

    QString& operator()(int row, int column);
    const QString& operator()(int row, int column) const;

private:
    qsizetype index(int row, int column) const;

    QList<QString> m_cells;
    int m_columns = 0;
};
