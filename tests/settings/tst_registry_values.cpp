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

    // Through the 255-byte buffers: every byte kept, a longer value cut, names case exact.
    void valuesKeepEveryByte()
    {
        MsgBoxRecorder boxes;
        const QString values[] = { QStringLiteral(" 08:00 17:30 "), QStringLiteral("a;b=c \"q\" #x [s] \\ %1"),
            QString::fromLatin1("M\xfcnchen \xdf\xa0\xff"), QString(255, QLatin1Char('y')) };
        for (const QString& value : values) {
            WriteRegValue(QStringLiteral("StatiSchedule"), value);
            QCOMPARE(ReadRegValue(QStringLiteral("StatiSchedule")), value);
        }
        WriteRegValue(QStringLiteral("DSN"), QString(300, QLatin1Char('z')));
        QCOMPARE(ReadRegValue(QStringLiteral("DSN")), QString(255, QLatin1Char('z')));
        QCOMPARE(ReadRegValue(QStringLiteral("dsn")), QString());
        QVERIFY(boxes.calls.isEmpty());
    }

    // The page carries on after the box: one box per failed value.
    void failedWritesShowOneBoxEach()
    {
        WriteRegValue(QStringLiteral("DB"), QStringLiteral("Oracle"));
        QFile::setPermissions(m_store, QFileDevice::ReadOwner);
        MsgBoxRecorder boxes;
        WriteRegValue(QStringLiteral("DB"), QStringLiteral("NVS"));
        WriteRegValue(QStringLiteral("INST"), QStringLiteral("01"));
        QFile::setPermissions(m_store, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        QCOMPARE(boxes.texts(), QStringList(2, QStringLiteral("KQM7061E Registry Error: Registry access is denied")));
        QCOMPARE(ReadRegValue(QStringLiteral("DB")), QStringLiteral("Oracle"));
    }

    // 7 and statuses the library never returns show nothing.
    void statusMessages()
    {
        const std::pair<qint16, QString> statuses[] = {
            { 1, QStringLiteral("KQM7055E Registry Error: Corrupt registry database") },
            { 7, QString() },
            { 87, QStringLiteral("KQM7062E Registry Error: Invalid parameters") },
            { 259, QStringLiteral("KQM7063E Registry Error: No more items") },
            { 1015, QString() },
        };
        for (const auto& [code, message] : statuses) {
            MsgBoxRecorder boxes;
            ShowRegistryError(code);
            QCOMPARE(boxes.texts(), message.isEmpty() ? QStringList() : QStringList { message });
        }
    }

private:
    QTemporaryDir m_dir;
    QString m_store;
};

QTEST_MAIN(TestRegistryValues)
#include "tst_registry_values.moc"
