#include "platform/forms/command_button.h"
#include "platform/forms/list_box.h"
#include "platform/forms/menu_item.h"
#include "platform/forms/text_box.h"
#include "platform/forms/tree_view.h"
#include "shell/MDIMainForm.h"
#include "shell/frmTreeView.h"
#include "shell/navigation.h"
#include "shell/page_form.h"
#include "shell/page_frame.h"
#include "shell/shared_state.h"
#include "support/console_fixture.h"
#include "support/msg_box_recorder.h"

#include <QFontMetrics>
#include <QStatusBar>

namespace {

class ProbePage : public PageForm
{
public:
    ProbePage()
        : PageForm(QStringLiteral("frmProbe"))
    {
        txtName = new TextBox(this, QStringLiteral("txtName"));
        txtName->SetTag(QStringLiteral("CLEAR"));
        txtKept = new TextBox(this, QStringLiteral("txtKept"));
        lstItems = new ListBox(this, QStringLiteral("lstItems"));
        new CommandButton(this, QStringLiteral("cmdOK"));
        UseButtonKeys([this] { log << QStringLiteral("ok"); }, [this] { log << QStringLiteral("cancel"); },
            new CommandButton(this, QStringLiteral("cmdCancel")));
    }

    TextBox* txtName;
    TextBox* txtKept;
    ListBox* lstItems;
    QStringList log;
};

FormRef<ProbePage> frmProbe;

} // namespace

// The tree and the menu each show one page at a time; the folder marks follow the tree only. The
// page helpers run last, on a page of their own.
class TestPageFrame : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(ConsoleFixture::startWithFirstPage());
        m_tree = frmTreeView->treConfigurator;
    }

    // "nd" names a tree node, "mnu" a menu item; the tree doesn't follow the menu.
    void everyNodeAndMenuItemShowsItsPage()
    {
        const char* const routes[][2] = { { "ndServer", "frmServers" }, { "ndDataSource", "frmDataSource" },
            { "ndKeepDays", "frmKeepDays" }, { "ndInitialConfig", "frmInitConfig" },
            { "ndReportConfig", "frmRepConfig" }, { "ndProgsToIgnore", "frmProgsToIgnore" },
            { "ndIDsToIgnore", "frmIDsToIgnore" }, { "ndTransToIgnore", "frmTransToIgnore" },
            { "ndSLA", "frmSLAconfig" }, { "ndSLAapplications", "frmTransGroup" }, { "ndSystemSLA", "frmSystemSLA" },
            { "ndSchedule", "frmSchConfig" }, { "ndSchStati", "frmSchStati" }, { "ndSnapConfig", "frmSnapConfig" },
            { "ndSpecRun", "frmSpecRun" }, { "ndCurrentConfig", "frmCurrentConfig" }, { "mnuServers", "frmServers" },
            { "mnuDataSource", "frmDataSource" }, { "mnuDataRetensionPeriod", "frmKeepDays" },
            { "mnuPrograms", "frmProgsToIgnore" }, { "mnuIDs", "frmIDsToIgnore" },
            { "mnuTransactions", "frmTransToIgnore" }, { "mnuCustomizedSLA", "frmTransGroup" },
            { "mnuSystemSLA", "frmSystemSLA" }, { "mnuSchStatistics", "frmSchStati" }, { "mnuSnap", "frmSnapConfig" },
            { "mnuSpecRun", "frmSpecRun" }, { "mnuCurrentConfig", "frmCurrentConfig" } };
        for (const auto& [from, page] : routes) {
            const QString source = QString::fromLatin1(from);
            const QString selected = SelectedNodeKey;
            if (source.startsWith(QLatin1String("nd")))
                pressNode(source);
            else
                MDIMainForm->findChild<MenuItem*>(source)->trigger();
            QTRY_VERIFY2(ConsoleFixture::shown(QString::fromLatin1(page)), from);
            QVERIFY2(visiblePages() == QStringList { QString::fromLatin1(page) }, from);
            QCOMPARE(SelectedNodeKey, source.startsWith(QLatin1String("nd")) ? source : selected);
            QCOMPARE(MDIMainForm->staMainStatusBar->currentMessage(), QStringLiteral("KQM7051I Status: Ready"));
        }
    }

    // The odd ones: ndInitialConfig marks folder 1, ndSpecRun 0, ndLogs and the overview nothing.
    // ndLogs and the logs leave the page on screen.
    void folderMarksAndLogNodes()
    {
        const std::pair<const char*, QList<int>> presses[] = { { "ndServer", { 2 } }, { "ndInitialConfig", {} },
            { "ndReportConfig", { 6 } }, { "ndCurrentConfig", { 6 } }, { "ndSLA", { 10 } }, { "ndLogs", { 10 } },
            { "ndStatiLog", { 16 } }, { "ndDVXstatiLog", { 16 } }, { "ndLoaderLog", { 16 } }, { "ndSpecRun", {} } };
        const QImage openImage = frmTreeView->TreeViewImageList.at(7).pixmap(16).toImage();
        for (const auto& [key, open] : presses) {
            const QStringList before = visiblePages();
            pressNode(QString::fromLatin1(key));
            for (int folder : { 2, 6, 10, 13, 16 }) {
                const bool isOpen = frmTreeView->NodeByIndex(folder)->icon(0).pixmap(16).toImage() == openImage;
                QVERIFY2(isOpen == open.contains(folder), qPrintable(QStringLiteral("%1, %2").arg(key).arg(folder)));
            }
            if (QByteArray(key).endsWith("Log") || QByteArray(key) == "ndLogs")
                QCOMPARE(visiblePages(), before);
        }
    }

    // Tab goes from the tree into a page and leaving its Cancel button comes back; the information
    // pages keep the focus in the tree, Tab too.
    void tabBetweenTreeAndPage()
    {
        pressNode(QStringLiteral("ndInitialConfig"));
        QTRY_VERIFY(ConsoleFixture::shown(QStringLiteral("frmInitConfig")));
        QTest::qWait(20);
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(m_tree));
        QTest::keyClick(m_tree, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(m_tree));

        pressNode(QStringLiteral("ndServer"));
        m_tree->setFocus();
        QTest::keyClick(m_tree, Qt::Key_Tab);
        QWidget* page = ConsoleFixture::widget(QStringLiteral("frmServers"));
        QVERIFY(QApplication::focusWidget() && page->isAncestorOf(QApplication::focusWidget()));
        auto* cancel = page->findChild<QWidget*>(QStringLiteral("cmdCancel"));
        cancel->setFocus();
        QTest::keyClick(cancel, Qt::Key_Tab);
        QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(m_tree));
    }

    // Strictly above the base width: a frame of the design width or less leaves the design width.
    void fitPageWidensWithTheFrameOnly()
    {
        frmProbe->Show();
        const int framesAndPages[][2] = { { 9650, 5880 }, { 10650, 6884 }, { 9000, 5880 } };
        for (const auto& [frameWidth, pageWidth] : framesAndPages) {
            frmProbe->Move(PageFrame::PaneWidth, 0, PageFrame::PageDesignWidth, PageFrame::PageDesignHeight);
            MDIMainForm->Move(0, 0, frameWidth, 8000);
            FitPage(frmProbe);
            QVERIFY2(qAbs(frmProbe->Width() - pageWidth) <= 15, qPrintable(QString::number(frmProbe->Width())));
            QVERIFY(qAbs(frmProbe->Left() - PageFrame::PaneWidth) <= 15);
            QCOMPARE(frmProbe->Top(), frmTreeView->Top());
        }
    }

    // The item with the most characters, the first of equals, in the default font.
    void listExtentMeasuresTheLongestItem()
    {
        ListBox* list = frmProbe->lstItems;
        list->Clear();
        for (const char* item : { "WWW", "iiiii", "WWWWW", "ab" })
            list->AddItem(QString::fromLatin1(item));
        SetListExtent(list);
        const QFontMetrics metrics(QApplication::font());
        QCOMPARE(list->HorizontalExtent(), metrics.horizontalAdvance(QStringLiteral("iiiii")));
        QCOMPARE(LastStringLength, 2);
        // an emptied list keeps its range
        list->Clear();
        SetListExtent(list);
        QCOMPARE(list->HorizontalExtent(), metrics.horizontalAdvance(QStringLiteral("iiiii")));
    }

    void clearTaggedFieldsAndSelectFieldText()
    {
        frmProbe->txtName->SetText(QStringLiteral("gone"));
        frmProbe->txtKept->SetText(QStringLiteral("server01"));
        ClearTaggedFields(frmProbe);
        QCOMPARE(frmProbe->txtName->Text(), QString());
        SelectFieldText(frmProbe->txtKept);
        QCOMPARE(frmProbe->txtKept->SelText(), QStringLiteral("server01"));
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(frmProbe->txtKept));
    }

    void enterAndEscapeReachTheButtonsFromAnyField()
    {
        frmProbe->log.clear();
        for (QWidget* field : { static_cast<QWidget*>(frmProbe->txtName), static_cast<QWidget*>(frmProbe->lstItems) }) {
            field->setFocus();
            QTest::keyClick(field, Qt::Key_Return);
            QTest::keyClick(field, Qt::Key_Escape);
        }
        QCOMPARE(frmProbe->log, QStringList({ "ok", "cancel", "ok", "cancel" }));
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

QTEST_MAIN(TestPageFrame)
#include "tst_page_frame.moc"
