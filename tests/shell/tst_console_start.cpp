#include "platform/clock.h"
#include "platform/forms/menu_item.h"
#include "platform/forms/tree_view.h"
#include "shell/MDIMainForm.h"
#include "shell/frmSplash.h"
#include "shell/navigation.h"
#include "shell/shared_state.h"
#include "support/console_fixture.h"

#include <QStatusBar>
#include <QTimer>

// One console per process: the start without "-D", on a clock the test drives.
class TestConsoleStart : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QFile groups(m_console.binDir + QStringLiteral("/qd7AppGroup.dat"));
        QVERIFY(groups.open(QIODevice::WriteOnly));
        groups.write("Sales                              5000");
        groups.close();
        m_now = QDateTime(QDate(2026, 11, 23), QTime(10, 0));
        // the splash's first look at the clock is the start of its wait
        Clock::setSource([this] {
            if (!m_waitFrom.isValid())
                m_waitFrom = m_now;
            return m_now;
        });
        // the fake clock moves in steps while the splash spins, and notes when the frame came
        connect(&m_ticker, &QTimer::timeout, this, [this] {
            if (!m_frameAt.isValid() && ConsoleFixture::shown(QStringLiteral("MDIMainForm")))
                m_frameAt = m_now;
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
    }

    void groupsAndInstallationAreReadFirst()
    {
        QCOMPARE(BinDir, m_console.binDir);
        QCOMPARE(AppGroupCount, qint16(1));
        QCOMPARE(AppGroupTable(1, 1), QStringLiteral("Sales"));
        QCOMPARE(AppGroupTable(1, 2), QStringLiteral("5000"));
    }

    void frameShowsTheOverviewBesideTheTree()
    {
        QCOMPARE(MDIMainForm->windowTitle(), QStringLiteral("Orvanta Monitor, Version 5.1.0 - Vantrel"));
        QCOMPARE(MDIMainForm->staMainStatusBar->currentMessage(), QStringLiteral("KQM7051I Status: Ready"));
        QVERIFY(ConsoleFixture::shown(QStringLiteral("frmTreeView")));
        QCOMPARE(CurrentPage, QStringLiteral("frmCurrentConfig"));
        Form* overview = PageByName(QStringLiteral("frmCurrentConfig"));
        QCOMPARE(overview->Left(), 3570); // 3564 twips, to the pixel
        QVERIFY(overview->subWindow()->geometry().left() >= ConsoleFixture::widget(QStringLiteral("frmTreeView"))->width());
        QCOMPARE(Form::lastActivated(), overview);
        auto* tree = qobject_cast<TreeView*>(ConsoleFixture::widget(QStringLiteral("treConfigurator")));
        QVERIFY(tree);
        QCOMPARE(tree->Nodes().size(), 26);
        QCOMPARE(tree->Node(QStringLiteral("ndServer"))->text(0), QStringLiteral("Server"));
        QCOMPARE(tree->Node(QStringLiteral("ndServer"))->parent(), tree->Node(QStringLiteral("ndInitialConfig")));
    }

    // The first HideOtherPages brought every page into being, hidden.
    void everyOtherPageIsLoadedAndHidden()
    {
        int visible = 0;
        for (const QString& name : PageNames()) {
            QWidget* page = ConsoleFixture::widget(name);
            QVERIFY2(page, qPrintable(name));
            visible += page->isVisible() ? 1 : 0;
        }
        QCOMPARE(visible, 1);
    }

    void skipSwitch_data()
    {
        QTest::addColumn<QString>("commandLine");
        QTest::addColumn<bool>("skips");
        QTest::newRow("-D") << "qd7console -D" << true;
        QTest::newRow("lower case") << "qd7console -d" << true;
        QTest::newRow("inside a word") << "qd7console --debug" << true;
        QTest::newRow("none") << "qd7console /D" << false;
    }

    void skipSwitch()
    {
        QFETCH(QString, commandLine);
        QFETCH(bool, skips);
        QCOMPARE(SkipsSplashDelay(commandLine), skips);
    }

    // The last character, and the one before the next switch, never count.
    void validateParms_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("next");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("alone");
        QTest::newRow("alone at the end") << 1 << 0 << "-D" << true;
        QTest::newRow("last character ignored") << 1 << 0 << "-Dx" << true;
        QTest::newRow("word after") << 1 << 0 << "-Dxyz" << false;
        QTest::newRow("blanks after") << 1 << 0 << "-D   " << true;
        QTest::newRow("before next, last ignored") << 1 << 6 << "-D  x-E" << true;
        QTest::newRow("word before next") << 1 << 8 << "-D xyz -E" << false;
    }

    void validateParms()
    {
        QFETCH(int, start);
        QFETCH(int, next);
        QFETCH(QString, text);
        QFETCH(bool, alone);
        QCOMPARE(MDIMainForm->validate_parms(qint16(start), qint16(next), text), alone);
    }

    void exitEndsAtOnce()
    {
        MDIMainForm->mnuExit->trigger();
        QVERIFY(!m_console.exitStatuses.isEmpty());
        QCOMPARE(m_console.exitStatuses.first(), 0);
    }

private:
    ConsoleFixture m_console;
    QDateTime m_now;
    QDateTime m_frameAt;
    QDateTime m_waitFrom;
    QTimer m_ticker;
};

QTEST_MAIN(TestConsoleStart)
#include "tst_console_start.moc"
