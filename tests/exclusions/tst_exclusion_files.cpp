#include "exclusions/exclusion_files.h"
#include "exclusions/exclusion_lists.h"
#include "exclusions/frmTransToIgnore.h"
#include "platform/forms/list_box.h"
#include "shell/main_status_bar.h"
#include "shell/shared_state.h"
#include "support/file_bytes.h"

#include <QStatusBar>
#include <QTemporaryDir>

// Lines as a collector would write them, built by hand rather than by the code under test.
static QByteArray line(const QByteArray& entry, int width)
{
    return entry.leftJustified(width, ' ') + "\r\n";
}

// The exclusion files byte for byte: what a save writes and what the loads read back.
class TestExclusionFiles : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        SetMainStatusBar(&m_status);
        BinDir = m_dir.path();
        m_status.showMessage(QStringLiteral("before"));
    }

    void lines_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("ABC: 14 bytes") << 12 << "ABC" << QByteArray("ABC         \r\n");
        QTest::newRow("30 characters: no padding")
            << 30 << "RSAQ_SELECT_TWENTYNINE_CHARS_X" << QByteArray("RSAQ_SELECT_TWENTYNINE_CHARS_X\r\n");
        QTest::newRow("leading blank lengthens the line") << 12 << " abc" << QByteArray(" ABC         \r\n");
        QTest::newRow("Latin-1 upper-cased, beyond it ?")
            << 20 << QString::fromUtf8("s\u00e9\u00ff\u20ac") << QByteArray("S\xc9\xff?                \r\n");
    }
    void lines()
    {
        QFETCH(int, width);
        QFETCH(QString, entry);
        QFETCH(QByteArray, bytes);
        const ExclusionFile file { "qd7Test.dat", "qd7Test.bak", width };
        ListBox list(nullptr, QStringLiteral("lstTest"));
        list.AddItem(entry);
        SaveExclusionList(file, &list);
        QCOMPARE(readBytes(file.path()), bytes);
        QCOMPARE(m_status.currentMessage(), QStringLiteral("KQM7052I Action successful"));
    }

    void read_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("entries");
        const QByteArray ddic = line("DDIC", 12);
        QTest::newRow("trimmed, in file order, nothing filtered")
            << line(" SAPSYS", 12) + ddic + line("", 12) + ddic + line("lower", 12)
            << QStringList { "SAPSYS", "DDIC", "", "DDIC", "lower" };
        QTest::newRow("last line without CR LF") << ddic + "TMSADM      " << QStringList { "DDIC", "TMSADM" };
        QTest::newRow("7 bytes: no record") << QByteArray("SAPCPIC") << QStringList();
        QTest::newRow("8 bytes: one record") << QByteArray("SAPCPIC1") << QStringList { "SAPCPIC1" };
        QTest::newRow("a lengthened line puts later ones out of step")
            << QByteArray(" ABC         \r\n") + ddic << QStringList { "ABC", "\nDDIC" };
        QTest::newRow("bytes 0x80-0xFF")
            << line("\x80\xa0\xc4\xff", 12) << QStringList { QString::fromLatin1("\x80\xa0\xc4\xff") };
    }
    void read()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QStringList, entries);
        writeBytes(ExclusionFiles::IDs.path(), bytes);
        QStringList read;
        ReadExclusionEntries(ExclusionFiles::IDs, [&read](const QString& entry) { read << entry; });
        QCOMPARE(read, entries);
    }

    void saveKeepsTheOldFileAsBackup()
    {
        const ExclusionFile& file = ExclusionFiles::Transactions;
        writeBytes(file.path(), line("SM04", 20));
        ListBox* list = frmTransToIgnore->lstTransToIgnore;
        list->AddItem(QStringLiteral("zva01"));
        LoadTransToIgnore(QStringLiteral("frmTransToIgnore")); // appends, in sorted place
        SaveExclusionList(file, list);
        QCOMPARE(readBytes(file.backupPath()), line("SM04", 20));
        QCOMPARE(readBytes(file.path()), line("SM04", 20) + line("ZVA01", 20));
        QCOMPARE(list->ListIndex(), 1); // each entry selected in turn

        list->Clear();
        m_status.showMessage(QStringLiteral("before"));
        SaveExclusionList(file, list);
        QVERIFY(!QFile::exists(file.path()));
        QCOMPARE(readBytes(file.backupPath()), line("SM04", 20));
        QCOMPARE(m_status.currentMessage(), QStringLiteral("before"));
    }

private:
    QTemporaryDir m_dir;
    QStatusBar m_status;
};

QTEST_MAIN(TestExclusionFiles)
#include "tst_exclusion_files.moc"
