#include "platform/clock.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/menu_item.h"
#include "platform/forms/text_box.h"
#include "shell/MDIMainForm.h"
#include "shell/frmCurrentConfig.h"
#include "shell/frmSplash.h"
#include "shell/navigation.h"
#include "shell/shared_state.h"
#include "support/console_fixture.h"
#include "support/msg_box_recorder.h"

#include <QProcess>
#include <QStatusBar>
#include <QTimer>

#include <cstdlib>

// The start without "-D", on a clock the test drives, and the overview it opens on. QD7_START_AT makes
// the child of the midnight case.
class TestConsoleStart : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_now = QDateTime(QDate(2026, 11, 23), QTime::fromString(qEnvironmentVariable("QD7_START_AT", "10:00")));
        // the splash's first look at the clock is the start of its wait
        Clock::setSource([this] {
            if (!m_waitFrom.isValid())
                m_waitFrom = m_now;
            return m_now;
        });
        // the clock moves in steps once the splash spins
        connect(&m_ticker, &QTimer::timeout, this, [this] {
            const bool frame = ConsoleFixture::shown(QStringLiteral("MDIMainForm"));
            if (!m_waitFrom.isValid())
                return;
            if (!m_frameAt.isValid() && frame)
                m_frameAt = m_now;
            if (m_waitFrom.msecsTo(m_now) == 60000 && !frame) {
                m_console.dir.remove();
                std::_Exit(3); // still waiting a minute on
            }
            m_now = m_now.addMSecs(250);
        });
        m_ticker.start(5);
        StartConsole(QStringLiteral("qd7console"));
        QTRY_VERIFY_WITH_TIMEOUT(ConsoleFixture::shown(QStringLiteral("frmCurrentConfig")), 20000);
        QTRY_VERIFY(m_frameAt.isValid());
        m_ticker.stop();
        Clock::reset();
    }

    void frameComesAfterThreeSecondsOfTheClock()
    {
        const qint64 waited = m_waitFrom.msecsTo(m_frameAt);
        QVERIFY2(waited >= 3000 && waited <= 3500, qPrintable(QString::number(waited)));
        QVERIFY(!ConsoleFixture::widget(QStringLiteral("frmSplash")));
        QCOMPARE(BinDir, m_console.binDir); // read by the splash
        // "-D" in either case skips the wait
        QVERIFY(SkipsSplashDelay(QStringLiteral("qd7console -d")));
        QVERIFY(!SkipsSplashDelay(QStringLiteral("qd7console")));
    }

    void frameShowsTheOverviewBesideTheTree()
    {
        QCOMPARE(MDIMainForm->windowTitle(), QStringLiteral("Orvanta Monitor, Version 5.1.0 - Vantrel"));
        QCOMPARE(MDIMainForm->staMainStatusBar->currentMessage(), QStringLiteral("KQM7051I Status: Ready"));
        QCOMPARE(CurrentPage, QStringLiteral("frmCurrentConfig"));
        Form* overview = PageByName(QStringLiteral("frmCurrentConfig"));
        QCOMPARE(overview->Left(), 3570); // 3564 twips, to the pixel
        QWidget* tree = ConsoleFixture::widget(QStringLiteral("frmTreeView"));
        QVERIFY(tree && tree->isVisible());
        QVERIFY(overview->subWindow()->geometry().left() >= tree->width());
        QCOMPARE(Form::lastActivated(), overview);
    }

    // The end of the wait lies past the day's last second, which the time of day never reaches.
    void startJustBeforeMidnightNeverLeavesTheWait()
    {
        QProcess child;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QD7_START_AT"), QStringLiteral("23:59:58"));
        child.setProcessEnvironment(environment);
        child.start(QCoreApplication::applicationFilePath(), { QStringLiteral("frameShowsTheOverviewBesideTheTree") });
        QVERIFY(child.waitForFinished(20000));
        QCOMPARE(child.exitCode(), 3);
    }

    // The overview tells what the settings and the files hold at each activation, and nothing more.
    void overviewFollowsTheSourcesOnDisk_data()
    {
        QTest::addColumn<QString>("dsn");
        QTest::addColumn<QByteArrayList>("files"); // IDs, programs, transactions; "-" for none
        QTest::addColumn<QStringList>("shown"); // data source and the three boxes, ">" the selection

        QTest::newRow("nothing at all: empty, no message")
            << QString() << QByteArrayList { "-", "-", "-" } << QStringList { "", "", "", "" };
        QTest::newRow("data source and three lists")
            << "QD7REPO"
            << QByteArrayList { "SAPSYS      \r\nDDIC        \r\n", "RSBTCRTE                      \r\n",
                   "SM50                \r\nST22                \r\n" }
            << QStringList { "QD7REPO", ">SAPSYS DDIC", ">RSBTCRTE", ">SM50 ST22" };
        QTest::newRow("changed: emptied, gone, lower case")
            << "QD7TEST" << QByteArrayList { "", "-", "se38                " }
            << QStringList { "QD7TEST", "", "", ">se38" };
    }

    void overviewFollowsTheSourcesOnDisk()
    {
        QFETCH(QString, dsn);
        QFETCH(QByteArrayList, files);
        QFETCH(QStringList, shown);

        ConsoleFixture::setValue("DSN", dsn);
        const char* names[] = { "qd7IDsToIgnore.dat", "qd7ProgsToIgnore.dat", "qd7TransToIgnore.dat" };
        for (int i = 0; i < 3; ++i) {
            QFile file(m_console.binDir + QLatin1Char('/') + QLatin1String(names[i]));
            if (files[i] == "-")
                file.remove();
            else
                QVERIFY(file.open(QIODevice::WriteOnly) && file.write(files[i]) == files[i].size());
        }
        // away to another page and back, as the user would
        MDIMainForm->mnuDataSource->trigger();
        MDIMainForm->mnuCurrentConfig->trigger();
        QStringList now { frmCurrentConfig->txtDataSource->Text() };
        for (ComboBox* box :
            { frmCurrentConfig->cmbIDs, frmCurrentConfig->cmbPrograms, frmCurrentConfig->cmbTransactions }) {
            QStringList items;
            for (int i = 0; i < box->ListCount(); ++i)
                items << (i == box->ListIndex() ? QStringLiteral(">") : QString()) + box->List(i);
            now << items.join(QLatin1Char(' '));
        }
        QCOMPARE(now, shown);
        QCOMPARE(m_boxes.calls.size(), 0);
        QCOMPARE(MDIMainForm->staMainStatusBar->currentMessage(), QStringLiteral("KQM7051I Status: Ready"));
    }

    // The last character, and the one before the next switch, never count.
    void validateParms()
    {
        const struct {
            int start;
            int next;
            const char* text;
            bool alone;
        } cases[] = { { 1, 0, "-D", true }, { 1, 0, "-Dx", true }, { 1, 0, "-Dxyz", false },
            { 1, 0, "-D   ", true }, { 1, 6, "-D  x-E", true }, { 1, 8, "-D xyz -E", false } };
        for (const auto& c : cases) {
            const bool alone = MDIMainForm->validate_parms(qint16(c.start), qint16(c.next), QLatin1String(c.text));
            QVERIFY2(alone == c.alone, c.text);
        }
    }

    // Exit ends the console at once: no question, nothing saved.
    void exitEndsAtOnce()
    {
        MDIMainForm->mnuExit->trigger();
        QVERIFY(!m_console.exitStatuses.isEmpty());
        QCOMPARE(m_console.exitStatuses.first(), 0);
        QCOMPARE(m_boxes.calls.size(), 0);
    }

private:
    ConsoleFixture m_console;
    MsgBoxRecorder m_boxes;
    QDateTime m_now;
    QDateTime m_frameAt;
    QDateTime m_waitFrom;
    QTimer m_ticker;
};

QTEST_MAIN(TestConsoleStart)
#include "tst_console_start.moc"
