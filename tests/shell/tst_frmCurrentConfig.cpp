#include "platform/forms/combo_box.h"
#include "platform/forms/menu_item.h"
#include "platform/forms/text_box.h"
#include "platform/forms/tree_view.h"
#include "shell/MDIMainForm.h"
#include "shell/frmCurrentConfig.h"
#include "shell/frmTreeView.h"
#include "support/console_fixture.h"
#include "support/msg_box_recorder.h"

#include <QStatusBar>

// The overview tells what the settings and the files hold at each activation, and nothing more.
class TestCurrentConfig : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(ConsoleFixture::startWithFirstPage());
        // focus moves only count in the active window; on a busy machine it may come late
        MDIMainForm->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(MDIMainForm));
    }

    void followsTheSourcesOnDisk_data()
    {
        QTest::addColumn<QString>("dsn");
        QTest::addColumn<QByteArrayList>("files"); // IDs, programs, transactions; "-" for none
        QTest::addColumn<QStringList>("shown"); // data source and the three boxes, ">" the selection

        QTest::newRow("nothing at all: empty, no message") << QString() << QByteArrayList { "-", "-", "-" }
                                                           << QStringList { "", "", "", "" };
        QTest::newRow("data source and three lists")
            << "QD7REPO"
            << QByteArrayList { "SAPSYS      \r\nDDIC        \r\n", "RSBTCRTE                      \r\n",
                   "SM50                \r\nST22                \r\n" }
            << QStringList { "QD7REPO", ">SAPSYS DDIC", ">RSBTCRTE", ">SM50 ST22" };
        QTest::newRow("changed: emptied, gone, lower case")
            << "QD7TEST" << QByteArrayList { "", "-", "se38                " }
            << QStringList { "QD7TEST", "", "", ">se38" };
    }

    void followsTheSourcesOnDisk()
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

    void tabFromTheLastBoxGoesToTheTree()
    {
        frmCurrentConfig->cmbTransactions->setFocus();
        QTest::keyClick(frmCurrentConfig->cmbTransactions, Qt::Key_Tab);
        QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(frmTreeView->treConfigurator));
    }

private:
    ConsoleFixture m_console;
    MsgBoxRecorder m_boxes;
};

QTEST_MAIN(TestCurrentConfig)
#include "tst_frmCurrentConfig.moc"
