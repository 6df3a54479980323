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
    void cleanup();

    void startsViewer_data();
    void startsViewer();

private:
    QByteArray m_path = qgetenv("PATH");
};

void TestTextViewer::cleanup()
{
    qputenv("PATH", m_path);
    qunsetenv("QD7_TEXT_VIEWER");
}

void TestTextViewer::startsViewer_data()
{
    QTest::addColumn<QString>("viewer"); // "-": unset
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("started"); // empty: error 53

    const QString named = QStringLiteral("viewer dir/my viewer");
    const QString fallback = QStringLiteral("path dir/xdg-open");
    QTest::newRow("named, blanks in path") << named << "/opt/my bin/trace_qd7stati.log" << named;
    QTest::newRow("named, shell characters") << named << "/tmp/a;b $(id) `x` 'q\".log" << named;
    QTest::newRow("named, leading dash") << named << "-n.log" << named;
    QTest::newRow("unset: xdg-open") << "-"
                                     << "/opt/my bin/trace_qd7ldr.log" << fallback;
    QTest::newRow("empty: xdg-open") << ""
                                     << "/x/trace_qd7snap.log" << fallback;
    QTest::newRow("named missing") << "viewer dir/missing"
                                   << "/x/a.log"
                                   << "";
    QTest::newRow("named is a command line") << named + " -x"
                                             << "/x/a.log"
                                             << "";
    QTest::newRow("named is a directory") << "viewer dir"
                                          << "/x/a.log"
                                          << "";
    QTest::newRow("unset, no xdg-open") << "-"
                                        << "/x/a.log"
                                        << "";
}

void TestTextViewer::startsViewer()
{
    QFETCH(QString, viewer);
    QFETCH(QString, file);
    QFETCH(QString, started);

    QTemporaryDir dir;
    QVERIFY(
        QDir(dir.path()).mkpath(QStringLiteral("viewer dir")) && QDir(dir.path()).mkpath(QStringLiteral("path dir")));
    QVERIFY(writeRecordingScript(dir.filePath(QStringLiteral("viewer dir/my viewer"))));
    QVERIFY(writeRecordingScript(dir.filePath(QStringLiteral("path dir/xdg-open"))));
    // Where a start must fail, PATH holds no xdg-open; where it works, the script needs the system's tools.
    qputenv("PATH",
        started.isEmpty() ? QFile::encodeName(dir.filePath(QStringLiteral("viewer dir")))
                          : QFile::encodeName(dir.filePath(QStringLiteral("path dir"))) + ":/usr/bin:/bin");
    if (viewer != QLatin1String("-"))
        qputenv("QD7_TEXT_VIEWER", QFile::encodeName(viewer.isEmpty() ? viewer : dir.filePath(viewer)));

    if (started.isEmpty()) {
        const RuntimeError error = failureOf([&] { openInTextViewer(file); });
        QCOMPARE(error.Number, 53);
        QVERIFY2(error.Context.contains(file), qPrintable(error.Context));
        return;
    }
    openInTextViewer(file);
    const QString record = dir.filePath(started) + QStringLiteral(".args");
    QVERIFY(waitForFile(record));
    QCOMPARE(linesOf(record), QStringList { file });
}

QTEST_GUILESS_MAIN(TestTextViewer)
#include "tst_text_viewer.moc"
