#include "platform/forms/hourglass.h"
#include "shell/shared_state.h"
#include "sla/group_files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

// Records as a collector would write them, built by hand rather than by the code under test.
QByteArray app(const QByteArray& name, const QByteArray& target)
{
    return name.leftJustified(35, ' ', true) + target.leftJustified(4, ' ', true);
}

QByteArray member(const QByteArray& name, const QByteArray& code)
{
    return name.leftJustified(35, ' ', true) + code.leftJustified(20, ' ', true);
}

// Rows 1 to the last as "name|value"; row 0 and column 0 must stay empty.
QStringList rowsOf(const TextTable& table)
{
    QStringList rows;
    for (int row = 0; row <= table.lastRow(); ++row) {
        if (!table(row, 0).isEmpty() || (row == 0 && !(table(0, 1) + table(0, 2)).isEmpty()))
            return { QStringLiteral("row 0 or column 0 written") };
        if (row > 0)
            rows << table(row, 1) + QLatin1Char('|') + table(row, 2);
    }
    return rows;
}

} // namespace

class TestGroupFiles : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        BinDir = m_dir->path();
    }

    // Names and values padded or cut to the fields, outer blanks and every Latin-1 byte kept.
    void recordsByteForByte()
    {
        const QString names[] = { QStringLiteral("Sales"), QStringLiteral("Forty characters of group name, ending X"),
            QString::fromLatin1(" S\xfc\x80\xff ") };
        const QString values[]
            = { QStringLiteral("25"), QStringLiteral("Z_TWENTY_ONE_LETTERS1"), QStringLiteral(" 1") };
        const QByteArray bytes[] = { "Sales                              25                  ",
            "Forty characters of group name, endZ_TWENTY_ONE_LETTERS",
            " S\xfc\x80\xff                               1                  " };
        for (int i = 0; i < 3; ++i) {
            QCOMPARE((AppGroupRecordBuffer { names[i], values[i] }.toBytes()), bytes[i].left(39));
            QCOMPARE((TransGroupRecordBuffer { names[i], values[i] }.toBytes()), bytes[i]);
            QCOMPARE(TransGroupRecordBuffer::fromBytes(bytes[i]).Name, QString::fromLatin1(bytes[i].left(35)));
        }
    }

    // The last record may be short; a group file drops repeated and blank names, a member file none.
    void load_data()
    {
        QTest::addColumn<bool>("groups");
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QStringList>("rows");
        const auto row = [](const char* tag, bool groups, const QByteArray& file, const QStringList& rows) {
            QTest::newRow(tag) << groups << file << rows;
        };
        const QByteArray sales = app("Sales", "2500");
        const QByteArray finance = app("Finance", "0100");
        row("empty file", true, {}, {});
        row("trimmed", true, sales + app("  Finance  ", "10"), { "Sales|2500", "Finance|10" });
        row("19 bytes over rounds down", true, sales + finance + QByteArray(19, 'H'), { "Sales|2500", "Finance|0100" });
        row("20 bytes over is a short record", true, sales + finance + QByteArray("HR                  "),
            { "Sales|2500", "Finance|0100", "HR|" });
        row("second of a name vanishes", true, sales + app("Sales", "9999"), { "Sales|2500", "|" });
        row("case differs", true, sales + app("SALES", "9999"), { "Sales|2500", "SALES|9999" });
        row("blank name dropped", true, app("", "1000") + sales, { "Sales|2500", "|" });
        row("tab is no padding", true, app("\tSales", "1") + sales, { "\tSales|1", "Sales|2500" });
        row("bytes 0x80-0xFF", true, app("Vertrieb \x80\xa0\xc4\xff", "\xb5"),
            { QString::fromLatin1("Vertrieb \x80\xa0\xc4\xff|\xb5") });
        const QByteArray va01 = member("Sales", "VA01");
        row("members: everything kept, trimmed", false,
            va01 + va01 + member("", "") + member("  No such group ", " fb01 "),
            { "Sales|VA01", "Sales|VA01", "|", "No such group|fb01" });
        row("members: 27 bytes over rounds down", false, va01 + va01.left(27), { "Sales|VA01" });
        row("members: 28 bytes over is a short record", false, va01 + va01.left(28), { "Sales|VA01", "Sales|" });
    }

    void load()
    {
        QFETCH(bool, groups);
        QFETCH(QByteArray, file);
        QFETCH(QStringList, rows);
        TextTable& table = groups ? AppGroupTable : TransGroupTable;
        qint16& count = groups ? AppGroupCount : TransGroupCount;
        table.redim(9, 2);
        table(1, 1) = QStringLiteral("left over");
        count = 9;
        QFile out(groups ? AppGroupFilePath() : TransGroupFilePath());
        QVERIFY(out.open(QIODevice::WriteOnly) && out.write(file) == file.size());
        out.close();
        groups ? LoadAppGroups() : LoadTransGroups();
        QCOMPARE(count, rows.size());
        QCOMPARE(table.lastColumn(), 2);
        QCOMPARE(rowsOf(table), rows);
        QVERIFY(!Hourglass::isOn());
    }

    // A missing file keeps the groups but empties the members; a directory of that name is a missing file.
    void missingFiles()
    {
        QVERIFY(QDir(BinDir).mkdir(QStringLiteral("qd7TransGroup.dat")));
        AppGroupTable.redim(3, 2);
        AppGroupTable(2, 1) = QStringLiteral("Sales");
        TransGroupTable.redim(3, 2);
        TransGroupTable(3, 2) = QStringLiteral("VA01");
        AppGroupCount = TransGroupCount = 3;
        LoadAppGroups();
        LoadTransGroups();
        QCOMPARE(AppGroupCount, 3);
        QCOMPARE(AppGroupTable(2, 1), QStringLiteral("Sales"));
        QCOMPARE(TransGroupCount, 0);
        QCOMPARE(TransGroupTable(3, 2), QStringLiteral("VA01"));
        QVERIFY(!Hourglass::isOn());
    }

private:
    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_MAIN(TestGroupFiles)
#include "tst_group_files.moc"
