#include "platform/forms/menu_item.h"
#include "platform/forms/tree_view.h"
#include "platform/forms/label.h"
#include "shell/MDIMainForm.h"
#include "shell/frmInitConfig.h"
#include "shell/frmTreeView.h"
#include "shell/navigation.h"
#include "shell/shared_state.h"
#include "support/console_fixture.h"
#include "support/msg_box_recorder.h"

#include <QStatusBar>

// The tree and the menu each show one page at a time; the folder marks follow the tree only.
class TestNavigation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(ConsoleFixture::startWithFirstPage());
        m_tree = frmTreeView->treConfigurator;
    }

    void nodesShowTheirPage_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("page");
        QTest::newRow("server") << "ndServer" << "frmServers";
        QTest::newRow("data source") << "ndDataSource" << "frmDataSource";
        QTest::newRow("retention") << "ndKeepDays" << "frmKeepDays";
        QTest::newRow("initial") << "ndInitialConfig" << "frmInitConfig";
        QTest::newRow("report") << "ndReportConfig" << "frmRepConfig";
        QTest::newRow("programs") << "ndProgsToIgnore" << "frmProgsToIgnore";
        QTest::newRow("ids") << "ndIDsToIgnore" << "frmIDsToIgnore";
        QTest::newRow("transactions") << "ndTransToIgnore" << "frmTransToIgnore";
        QTest::newRow("sla") << "ndSLA" << "frmSLAconfig";
        QTest::newRow("applications") << "ndSLAapplications" << "frmTransGroup";
        QTest::newRow("system sla") << "ndSystemSLA" << "frmSystemSLA";
        QTest::newRow("schedule") << "ndSchedule" << "frmSchConfig";
        QTest::newRow("statistics") << "ndSchStati" << "frmSchStati";
        QTest::newRow("indicator") << "ndSnapConfig" << "frmSnapConfig";
        QTest::newRow("special run") << "ndSpecRun" << "frmSpecRun";
        QTest::newRow("overview") << "ndCurrentConfig" << "frmCurrentConfig";
    }

    void nodesShowTheirPage()
    {
        QFETCH(QString, key);
        QFETCH(QString, page);
        pressNode(key);
        QTRY_VERIFY(ConsoleFixture::shown(page));
        QCOMPARE(CurrentPage, page);
        QCOMPARE(visiblePages(), QStringList { page });
        QCOMPARE(SelectedNodeKey, key);
        QCOMPARE(MDIMainForm->staMainStatusBar->currentMessage(), QStringLiteral("KQM7051I Status: Ready"));
    }

    void menuItemsShowTheirPage_data()
    {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("page");
        QTest::newRow("servers") << "mnuServers" << "frmServers";
        QTest::newRow("data source") << "mnuDataSource" << "frmDataSource";
        QTest::newRow("retention") << "mnuDataRetensionPeriod" << "frmKeepDays";
        QTest::newRow("programs") << "mnuPrograms" << "frmProgsToIgnore";
        QTest::newRow("ids") << "mnuIDs" << "frmIDsToIgnore";
        QTest::newRow("transactions") << "mnuTransactions" << "frmTransToIgnore";
        QTest::newRow("applications") << "mnuCustomizedSLA" << "frmTransGroup";
        QTest::newRow("system sla") << "mnuSystemSLA" << "frmSystemSLA";
        QTest::newRow("statistics") << "mnuSchStatistics" << "frmSchStati";
        QTest::newRow("indicator") << "mnuSnap" << "frmSnapConfig";
        QTest::newRow("special run") << "mnuSpecRun" << "frmSpecRun";
        QTest::newRow("overview") << "mnuCurrentConfig" << "frmCurrentConfig";
    }

    void menuItemsShowTheirPage()
    {
        QFETCH(QString, item);
        QFETCH(QString, page);
        pressNode(QStringLiteral("ndSLA"));
        const QString selected = TreeView::NodeKey(m_tree->SelectedItem());
        MDIMainForm->findChild<MenuItem*>(item)->trigger();
        QTRY_VERIFY(ConsoleFixture::shown(page));
        QCOMPARE(visiblePages(), QStringList { page });
        // the tree doesn't follow the menu
        QCOMPARE(TreeView::NodeKey(m_tree->SelectedItem()), selected);
    }

    void menuCaptionsAndShortcuts()
    {
        QCOMPARE(MDIMainForm->mnuExit->text(), QStringLiteral("E&xit"));
        QCOMPARE(MDIMainForm->mnuExit->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Q));
        QCOMPARE(MDIMainForm->mnuDVXstatiLog->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_S));
        QCOMPARE(MDIMainForm->mnuDVXsnapLog->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_I));
        QCOMPARE(MDIMainForm->mnuDataRetensionPeriod->text(), QStringLiteral("Repository &database retention period"));
    }

    // The folder marks, the odd ones too: ndInitialConfig marks folder 1, ndSpecRun 0.
    void folderMarks_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QList<int>>("open");
        QTest::newRow("server opens 2") << "ndServer" << QList<int> { 2 };
        QTest::newRow("initial opens none") << "ndInitialConfig" << QList<int> {};
        QTest::newRow("report opens 6") << "ndReportConfig" << QList<int> { 6 };
        QTest::newRow("overview leaves them") << "ndCurrentConfig" << QList<int> { 6 };
        QTest::newRow("sla opens 10") << "ndSLA" << QList<int> { 10 };
        QTest::newRow("logs folder: nothing") << "ndLogs" << QList<int> { 10 };
        QTest::newRow("a log opens 16") << "ndStatiLog" << QList<int> { 16 };
        QTest::newRow("special run closes all") << "ndSpecRun" << QList<int> {};
    }

    void folderMarks()
    {
        QFETCH(QString, key);
        QFETCH(QList<int>, open);
        pressNode(key);
        const QPixmap openImage = frmTreeView->TreeViewImageList.at(7).pixmap(16);
        for (int folder : { 2, 6, 10, 13, 16 }) {
            const bool isOpen = frmTreeView->NodeByIndex(folder)->icon(0).pixmap(16).toImage() == openImage.toImage();
            QCOMPARE(isOpen, open.contains(folder));
        }
    }

    void logNodesLeaveThePageOnScreen()
    {
        pressNode(QStringLiteral("ndServer"));
        QTRY_VERIFY(ConsoleFixture::shown(QStringLiteral("frmServers")));
        for (const char* key : { "ndLogs", "ndDVXstatiLog", "ndLoaderLog" }) {
            pressNode(QString::fromLatin1(key));
            QCOMPARE(visiblePages(), QStringList { "frmServers" });
        }
    }

    void arrowKeysMoveOnlyEnterShows()
    {
        pressNode(QStringLiteral("ndCurrentConfig"));
        m_tree->collapseAll();
        m_tree->setFocus();
        m_tree->SetSelectedItem(m_tree->Node(QStringLiteral("ndInitialConfig")));
        QTest::keyClick(m_tree, Qt::Key_Down);
        QCOMPARE(TreeView::NodeKey(m_tree->SelectedItem()), QStringLiteral("ndReportConfig"));
        QCOMPARE(visiblePages(), QStringList { "frmCurrentConfig" });
        QTest::keyClick(m_tree, Qt::Key_Return);
        QTRY_COMPARE(visiblePages(), QStringList { "frmRepConfig" });
    }

    void informationPagesLeaveTheFocusInTheTree()
    {
        pressNode(QStringLiteral("ndInitialConfig"));
        QTRY_VERIFY(ConsoleFixture::shown(QStringLiteral("frmInitConfig")));
        QTest::qWait(20);
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(m_tree));
        QCOMPARE(frmInitConfig->lblTitle->Caption(), QStringLiteral("Initial configuration"));
        // Tab stays in the tree: the information pages are no place to return to
        QTest::keyClick(m_tree, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(m_tree));
    }

    void tabGoesFromTheTreeToThePage()
    {
        pressNode(QStringLiteral("ndServer"));
        m_tree->setFocus();
        QTest::keyClick(m_tree, Qt::Key_Tab);
        QWidget* focus = QApplication::focusWidget();
        QVERIFY(focus);
        QVERIFY(ConsoleFixture::widget(QStringLiteral("frmServers"))->isAncestorOf(focus)
            || focus == ConsoleFixture::widget(QStringLiteral("frmServers")));
    }

    void pressOnEmptySpaceDoesNothing()
    {
        pressNode(QStringLiteral("ndServer"));
        const QString before = SelectedNodeKey;
        m_tree->collapseAll();
        QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, QPoint(5, m_tree->viewport()->height() - 3));
        QCOMPARE(SelectedNodeKey, before);
        QCOMPARE(visiblePages(), QStringList { "frmServers" });
    }

private:
    void pressNode(const QString& key)
    {
        QTreeWidgetItem* node = m_tree->Node(key);
        QVERIFY(node);
        if (node->parent())
            m_tree->expandItem(node->parent());
        m_tree->scrollToItem(node);
        QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, m_tree->visualItemRect(node).center());
        QTest::qWait(10);
    }

    static QStringList visiblePages()
    {
        QStringList shown;
        for (const QString& name : PageNames()) {
            if (ConsoleFixture::shown(name))
                shown << name;
        }
        return shown;
    }

    ConsoleFixture m_console;
    MsgBoxRecorder m_boxes; // the log nodes say their log doesn't exist
    TreeView* m_tree = nullptr;
};

QTEST_MAIN(TestNavigation)
#include "tst_navigation.moc"
