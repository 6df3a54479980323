#include "platform/forms/command_button.h"
#include "platform/forms/label.h"
#include "platform/forms/list_box.h"
#include "platform/forms/text_box.h"
#include "platform/forms/tree_view.h"
#include "shell/MDIMainForm.h"
#include "shell/frmTreeView.h"
#include "shell/page_form.h"
#include "shell/page_frame.h"
#include "shell/shared_state.h"
#include "support/console_fixture.h"

#include <QFontMetrics>

namespace {

class ProbePage : public PageForm
{
public:
    ProbePage()
        : PageForm(QStringLiteral("frmProbe"))
    {
        txtName = new TextBox(this, QStringLiteral("txtName"));
        txtName->SetTag(QStringLiteral("CLEAR"));
        txtName->Move(480, 480, 2000, 315);
        txtKept = new TextBox(this, QStringLiteral("txtKept"));
        txtKept->Move(480, 960, 2000, 315);
        lstItems = new ListBox(this, QStringLiteral("lstItems"));
        lstItems->Move(480, 1440, 2000, 1000);
        cmdOK = new CommandButton(this, QStringLiteral("cmdOK"));
        cmdOK->Move(480, 2600, 1000, 375);
        cmdCancel = new CommandButton(this, QStringLiteral("cmdCancel"));
        cmdCancel->Move(1600, 2600, 1000, 375);
        UseButtonKeys([this] { log << QStringLiteral("ok"); }, [this] { log << QStringLiteral("cancel"); }, cmdCancel);
    }

    TextBox* txtName;
    TextBox* txtKept;
    ListBox* lstItems;
    CommandButton* cmdOK;
    CommandButton* cmdCancel;
    QStringList log;
};

FormRef<ProbePage> frmProbe;

} // namespace

class TestPageFrame : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(ConsoleFixture::startWithFirstPage());
        frmProbe->Show();
    }

    // Strictly above the base width: a frame of the design width leaves the design width.
    void fitPageWidensWithTheFrameOnly_data()
    {
        QTest::addColumn<int>("frameWidth");
        QTest::addColumn<int>("pageWidth");
        QTest::newRow("design frame") << 9650 << 5880;
        QTest::newRow("wider frame") << 10650 << 6884;
        QTest::newRow("narrower frame") << 9000 << 5880;
    }

    void fitPageWidensWithTheFrameOnly()
    {
        QFETCH(int, frameWidth);
        QFETCH(int, pageWidth);
        frmProbe->Move(PageFrame::PaneWidth, 0, PageFrame::PageDesignWidth, PageFrame::PageDesignHeight);
        MDIMainForm->Move(0, 0, frameWidth, 8000);
        FitPage(frmProbe);
        QVERIFY(qAbs(frmProbe->Width() - pageWidth) <= 15);
        QVERIFY(qAbs(frmProbe->Left() - PageFrame::PaneWidth) <= 15);
        QCOMPARE(frmProbe->Top(), frmTreeView->Top());
        QVERIFY(qAbs(frmProbe->Height() - PageFrame::PageDesignHeight) <= 15);
        QVERIFY(qAbs(frmTreeView->Width() - PageFrame::PaneWidth) <= 15);
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

    void clearTaggedFieldsEmptiesOnlyTheMarked()
    {
        frmProbe->txtName->SetText(QStringLiteral("gone"));
        frmProbe->txtKept->SetText(QStringLiteral("kept"));
        ClearTaggedFields(frmProbe);
        QCOMPARE(frmProbe->txtName->Text(), QString());
        QCOMPARE(frmProbe->txtKept->Text(), QStringLiteral("kept"));
    }

    void selectFieldTextSelectsAllAndFocuses()
    {
        frmProbe->txtKept->SetText(QStringLiteral("server01"));
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

    void leavingCancelReturnsToTheTree()
    {
        frmProbe->Show();
        frmProbe->cmdCancel->setFocus();
        QTest::qWait(10);
        frmProbe->txtKept->setFocus();
        QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(frmTreeView->treConfigurator));
    }

private:
    ConsoleFixture m_console;
};

QTEST_MAIN(TestPageFrame)
#include "tst_page_frame.moc"
