#include "platform/text_viewer.h"
#include "support/failure_of.h"
#include "support/recording_script.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

class TestTextViewer : public QObject
{
    Q_OBJECT

private slots:
    void startsViewer_data();
    void startsViewer();
};

void TestTextViewer::startsViewer_data()
{
    QTest::addColumn<QString>("viewer"); // QD7_TEXT_VIEWER; empty: unset
    QTest::addColumn<QString>("started"); // empty: error 53

    const QString named = QStringLiteral("bin dir/my viewer");
    QTest::newRow("named") << named << named;
    QTest::newRow("unset: xdg-open on PATH") << QString() << "bin dir/xdg-open";
    QTest::newRow("named missing") << "bin dir/missing" << QString();
    QTest::newRow("named is a command line") << named + " -x" << QString();
}

void TestTextViewer::startsViewer()
{
    QFETCH(QString, viewer);
    QFETCH(QString, started);

    QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkpath(QStringLiteral("bin dir")));
    QVERIFY(writeRecordingScript(dir.filePath(QStringLiteral("bin dir/my viewer"))));
    QVERIFY(writeRecordingScript(dir.filePath(QStringLiteral("bin dir/xdg-open"))));
    if (viewer.isEmpty())
        qunsetenv("QD7_TEXT_VIEWER");
    else
        qputenv("QD7_TEXT_VIEWER", QFile::encodeName(dir.filePath(viewer)));
    const QByteArray oldPath = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(dir.filePath(QStringLiteral("bin dir"))) + ":/usr/bin:/bin");

    const QString file = QStringLiteral("/opt/my bin/trace_qd7stati.log; $(id)");
    const RuntimeError error = failureOf([&] { openInTextViewer(file); });
    qputenv("PATH", oldPath);
    if (started.isEmpty()) {
        QCOMPARE(error.Number, 53);
        QVERIFY2(error.Context.contains(file), qPrintable(error.Context));
    } else {
        QCOMPARE(error.Number, 0);
        QCOMPARE(linesOf(dir.filePath(started) + QStringLiteral(".args")), QStringList { file });
    }
}

QTEST_GUILESS_MAIN(TestTextViewer)
#include "tst_text_viewer.moc"
