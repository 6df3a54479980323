#include "platform/runtime_error.h"

#include <QTest>

class TestRuntimeError : public QObject
{
    Q_OBJECT

private slots:
    void classicDescriptions_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("description");
        QTest::newRow("5") << 5 << "Invalid procedure call or argument";
        QTest::newRow("6") << 6 << "Overflow";
        QTest::newRow("9") << 9 << "Subscript out of range";
        QTest::newRow("13") << 13 << "Type mismatch";
        QTest::newRow("52") << 52 << "Bad file name or number";
        QTest::newRow("53") << 53 << "File not found";
        QTest::newRow("61") << 61 << "Disk full";
        QTest::newRow("62") << 62 << "Input past end of file";
        QTest::newRow("70") << 70 << "Permission denied";
        QTest::newRow("75") << 75 << "Path/File access error";
        QTest::newRow("76") << 76 << "Path not found";
        QTest::newRow("380") << 380 << "Invalid property value";
    }

    void classicDescriptions()
    {
        QFETCH(int, number);
        QFETCH(QString, description);
        const RuntimeError error(number, QStringLiteral("Opening /tmp/x"));
        QCOMPARE(error.Number, number);
        QCOMPARE(error.Description, description);
        QCOMPARE(error.Context, QStringLiteral("Opening /tmp/x"));
        QCOMPARE(QString::fromLocal8Bit(error.what()), QStringLiteral("Run-time error '%1': %2").arg(number).arg(description));
    }
};

QTEST_GUILESS_MAIN(TestRuntimeError)
#include "tst_runtime_error.moc"
