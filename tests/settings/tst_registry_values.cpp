#include "settings/registry_values.h"
#include "support/msg_box_recorder.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestRegistryValues : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_store = m_dir.filePath(QStringLiteral("registry.ini"));
        QFile::remove(m_store);
        qputenv("QD7_REGISTRY", QFile::encodeName(m_store));
    }

    void valuesKeepEveryByte_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("leading blank") << " 31";
        QTest::newRow("schedule with trailing blank") << "08:00 17:30 ";
        QTest::newRow("ini punctuation") << "a;b=c \"q\" #x [s] \\ %1";
        QTest::newRow("latin-1") << QString::fromLatin1("Gr\xfc\xdf" "e \xa0\xff");
        QTest::newRow("254 characters") << QString(254, QLatin1Char('x'));
        QTest::newRow("255 characters") << QString(255, QLatin1Char('y'));
    }

    void valuesKeepEveryByte()
    {
        QFETCH(QString, value);
        MsgBoxRecorder boxes;
        WriteRegValue(QStringLiteral("StatiSchedule"), value);
        QCOMPARE(ReadRegValue(QStringLiteral("StatiSchedule")), value);
        QVERIFY(boxes.calls.isEmpty());
    }

    void longerValuesAreCutAt255()
    {
        WriteRegValue(QStringLiteral("DSN"), QString(300, QLatin1Char('z')));
        QCOMPARE(ReadRegValue(QStringLiteral("DSN")), QString(255, QLatin1Char('z')));
    }

    void absentValueIsEmptyAndNamesAreCaseExact()
    {
        MsgBoxRecorder boxes;
        QCOMPARE(ReadRegValue(QStringLiteral("NeverWritten")), QString());
        WriteRegValue(QStringLiteral("Notation"), QStringLiteral("."));
        QCOMPARE(ReadRegValue(QStringLiteral("notation")), QString());
        QVERIFY(boxes.calls.isEmpty());
    }

    // The page carries on after the box: one box per failed value.
    void failedWritesShowOneBoxEach()
    {
        WriteRegValue(QStringLiteral("DB"), QStringLiteral("Oracle"));
        QFile::setPermissions(m_store, QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther);
        MsgBoxRecorder boxes;
        WriteRegValue(QStringLiteral("DB"), QStringLiteral("NVS"));
        WriteRegValue(QStringLiteral("INST"), QStringLiteral("01"));
        QFile::setPermissions(m_store, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        QCOMPARE(boxes.texts(),
            QStringList(2, QStringLiteral("KQM7061E Registry Error: Registry access is denied")));
        QCOMPARE(boxes.calls.first().title, QStringLiteral("KQM7049I Orvanta Monitor 5.1.0 - Vantrel"));
        QCOMPARE(boxes.calls.first().flags, 0);
        QCOMPARE(ReadRegValue(QStringLiteral("DB")), QStringLiteral("Oracle"));
    }

    void corruptStoreReadsEmptyAndRefusesWrites()
    {
        QFile file(m_store);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("DB=Oracle\nthis line has no equals sign\n");
        file.close();
        MsgBoxRecorder boxes;
        QCOMPARE(ReadRegValue(QStringLiteral("DB")), QString());
        WriteRegValue(QStringLiteral("DB"), QStringLiteral("NVS"));
        QCOMPARE(boxes.texts(), QStringList { QStringLiteral("KQM7055E Registry Error: Corrupt registry database") });
    }

    void statusMessages_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message");
        QTest::newRow("1") << 1 << "KQM7055E Registry Error: Corrupt registry database";
        QTest::newRow("2") << 2 << "KQM7056E Registry Error: Key name is bad";
        QTest::newRow("3") << 3 << "KQM7057E Registry Error: Unable to open key";
        QTest::newRow("4") << 4 << "KQM7058E Registry Error: Unable to read key";
        QTest::newRow("5") << 5 << "KQM7059E Registry Error: Unable to write key";
        QTest::newRow("6") << 6 << "KQM7060E Registry Error: Out of memory";
        QTest::newRow("7 is silent") << 7 << QString();
        QTest::newRow("8") << 8 << "KQM7061E Registry Error: Registry access is denied";
        QTest::newRow("87") << 87 << "KQM7062E Registry Error: Invalid parameters";
        QTest::newRow("259") << 259 << "KQM7063E Registry Error: No more items";
        QTest::newRow("unknown") << 1015 << QString();
    }

    void statusMessages()
    {
        QFETCH(int, code);
        QFETCH(QString, message);
        MsgBoxRecorder boxes;
        ShowRegistryError(qint16(code));
        QCOMPARE(boxes.texts(), message.isEmpty() ? QStringList() : QStringList { message });
    }

private:
    QTemporaryDir m_dir;
    QString m_store;
};

QTEST_MAIN(TestRegistryValues)
#include "tst_registry_values.moc"
