#include "platform/forms/hourglass.h"
#include "platform/record_file.h"
#include "platform/support/failure_of.h"
#include "shell/shared_state.h"
#include "sla/group_files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <unistd.h>

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
        AppGroupTable = TextTable();
        TransGroupTable = TextTable();
        AppGroupCount = TransGroupCount = 0;
    }

    void cleanup() { Hourglass::set(false); }

    void recordsByteForByte_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QByteArray>("appBytes");
        QTest::addColumn<QByteArray>("memberBytes");

        QTest::newRow("padded") << "Sales"
                                << "25" << QByteArray("Sales                              25  ")
                                << QByteArray("Sales                              25                  ");
        QTest::newRow("cut") << "Forty characters of group name, ending X"
                             << "Z_TWENTY_ONE_LETTERS1" << QByteArray("Forty characters of group name, endZ_TW")
                             << QByteArray("Forty characters of group name, endZ_TWENTY_ONE_LETTERS");
        QTest::newRow("outer blanks and latin-1 kept")
            << QString::fromLatin1(" S\xfc\x80\xff ") << " 1"
            << QByteArray(" S\xfc\x80\xff                               1  ")
            << QByteArray(" S\xfc\x80\xff                               1                  ");
    }

    void recordsByteForByte()
    {
        QFETCH(QString, name);
        QFETCH(QString, value);
        QFETCH(QByteArray, appBytes);
        QFETCH(QByteArray, memberBytes);

        const AppGroupRecordBuffer group { name, value };
        const TransGroupRecordBuffer code { name, value };
        QCOMPARE(group.toBytes(), appBytes);
        QCOMPARE(code.toBytes(), memberBytes);
        const AppGroupRecordBuffer groupBack = AppGroupRecordBuffer::fromBytes(appBytes);
        const TransGroupRecordBuffer codeBack = TransGroupRecordBuffer::fromBytes(memberBytes);
        QCOMPARE(groupBack.Name, QString::fromLatin1(appBytes.left(35)));
        QCOMPARE(groupBack.Target, QString::fromLatin1(appBytes.mid(35)));
        QCOMPARE(codeBack.Name, QString::fromLatin1(memberBytes.left(35)));
        QCOMPARE(codeBack.Code, QString::fromLatin1(memberBytes.mid(35)));
    }

    void loadAppGroups_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QStringList>("rows");

        const QByteArray sales = app("Sales", "2500");
        const QByteArray finance = app("Finance", "0100");
        QTest::newRow("empty file") << QByteArray() << QStringList();
        QTest::newRow("trimmed") << sales + app("  Finance  ", "10") << QStringList { "Sales|2500", "Finance|10" };
        QTest::newRow("19 bytes over rounds down")
            << sales + finance + QByteArray(19, 'H') << QStringList { "Sales|2500", "Finance|0100" };
        QTest::newRow("20 bytes over is a short record") << sales + finance + QByteArray("HR                  ")
                                                         << QStringList { "Sales|2500", "Finance|0100", "HR|" };
        QTest::newRow("second of a name vanishes") << sales + app("Sales", "9999") << QStringList { "Sales|2500", "|" };
        QTest::newRow("case differs") << sales + app("SALES", "9999") << QStringList { "Sales|2500", "SALES|9999" };
        QTest::newRow("blank name dropped") << app("", "1000") + sales << QStringList { "Sales|2500", "|" };
        QTest::newRow("tab is no padding") << app("\tSales", "1") + sales << QStringList { "\tSales|1", "Sales|2500" };
        QTest::newRow("bytes 0x80-0xFF") << app("Vertrieb \x80\xa0\xc4\xff", "\xb5")
                                         << QStringList { QString::fromLatin1("Vertrieb \x80\xa0\xc4\xff|\xb5") };
    }

    void loadAppGroups()
    {
        QFETCH(QByteArray, file);
        QFETCH(QStringList, rows);

        AppGroupTable.redim(5, 2);
        AppGroupTable(1, 1) = QStringLiteral("left over");
        AppGroupCount = 5;
        writeFile(QStringLiteral("qd7AppGroup.dat"), file);
        LoadAppGroups();
        QCOMPARE(AppGroupCount, rows.size());
        QCOMPARE(AppGroupTable.lastColumn(), 2);
        QCOMPARE(rowsOf(AppGroupTable), rows);
    }

    void loadTransGroups_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QStringList>("rows");

        const QByteArray va01 = member("Sales", "VA01");
        QTest::newRow("empty file") << QByteArray() << QStringList();
        QTest::newRow("everything kept, trimmed")
            << va01 + va01 + member("", "") + member("  No such group ", " fb01 ") + member("sales", "VA01")
            << QStringList { "Sales|VA01", "Sales|VA01", "|", "No such group|fb01", "sales|VA01" };
        QTest::newRow("27 bytes over rounds down") << va01 + va01.left(27) << QStringList { "Sales|VA01" };
        QTest::newRow("28 bytes over is a short record")
            << va01 + va01.left(28) << QStringList { "Sales|VA01", "Sales|" };
    }

    void loadTransGroups()
    {
        QFETCH(QByteArray, file);
        QFETCH(QStringList, rows);

        TransGroupTable.redim(9, 2);
        TransGroupTable(1, 1) = QStringLiteral("left over");
        TransGroupCount = 9;
        writeFile(QStringLiteral("qd7TransGroup.dat"), file);
        LoadTransGroups();
        QCOMPARE(TransGroupCount, rows.size());
        QCOMPARE(TransGroupTable.lastColumn(), 2);
        QCOMPARE(rowsOf(TransGroupTable), rows);
        QVERIFY(!Hourglass::isOn());
    }

    void missingFileAsymmetry_data()
    {
        QTest::addColumn<bool>("directoryInPlace");
        QTest::newRow("no file") << false;
        // The existence test counts files only: a directory of that name is a missing file.
        QTest::newRow("a directory of that name") << true;
    }

    void missingFileAsymmetry()
    {
        QFETCH(bool, directoryInPlace);

        LoadAppGroups(); // before the first save nothing is sized at all
        QVERIFY(!AppGroupTable.isSized());
        if (directoryInPlace) {
            QVERIFY(QDir(BinDir).mkdir(QStringLiteral("qd7AppGroup.dat")));
            QVERIFY(QDir(BinDir).mkdir(QStringLiteral("qd7TransGroup.dat")));
        }
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

    void longNameKeepsTheLinkAfterWriting()
    {
        const QString name = QStringLiteral("A group name of forty characters, typed");
        const AppGroupRecordBuffer group { name, QStringLiteral("2500") };
        const TransGroupRecordBuffer code { name, QStringLiteral("SE38") };
        RecordFile(AppGroupFilePath(), AppGroupRecordBuffer::Length).write(1, group.toBytes());
        RecordFile(TransGroupFilePath(), TransGroupRecordBuffer::Length).write(1, code.toBytes());
        LoadAppGroups();
        LoadTransGroups();
        QCOMPARE(AppGroupTable(1, 1), name.left(35));
        QCOMPARE(TransGroupTable(1, 1), AppGroupTable(1, 1));
        QCOMPARE(QFileInfo(AppGroupFilePath()).size(), 39);
        QCOMPARE(QFileInfo(TransGroupFilePath()).size(), 55);
    }

    void unreadableFileRises_data()
    {
        QTest::addColumn<bool>("isApp");
        QTest::newRow("groups held by a collector") << true;
        QTest::newRow("members held by a collector") << false;
    }

    void unreadableFileRises()
    {
        QFETCH(bool, isApp);

        const QString path = isApp ? AppGroupFilePath() : TransGroupFilePath();
        writeFile(QFileInfo(path).fileName(), isApp ? app("Sales", "2500") : member("Sales", "VA01"));
        // A lock on a descriptor of its own conflicts with the console's, as another process's would.
        const int held = ::open(QFile::encodeName(path).constData(), O_RDONLY);
        QVERIFY(held >= 0 && ::flock(held, LOCK_EX) == 0);
        AppGroupCount = TransGroupCount = 4;
        const RuntimeError error = failureOf(isApp ? LoadAppGroups : LoadTransGroups);
        ::close(held);
        QCOMPARE(error.Number, 70);
        QVERIFY(error.Context.contains(path));
        QCOMPARE(AppGroupCount, 4);
        QCOMPARE(TransGroupCount, 4);
    }

private:
    void writeFile(const QString& name, const QByteArray& bytes)
    {
        QFile file(m_dir->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_MAIN(TestGroupFiles)
#include "tst_group_files.moc"
