#include "platform/forms/check_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/form_ref.h"
#include "platform/forms/frame.h"
#include "platform/forms/label.h"
#include "platform/forms/list_box.h"
#include "platform/forms/menu_item.h"
#include "platform/forms/option_button.h"
#include "platform/forms/text_box.h"
#include "platform/forms/timer.h"

#include <QApplication>
#include <QMdiArea>
#include <QTest>

namespace {

QStringList journal;

class PageForm : public Form
{
public:
    PageForm()
        : Form(QStringLiteral("frmPage"))
    {
        lblTitle = new Label(this, QStringLiteral("lblTitle"));
        fraType = new Frame(this, QStringLiteral("fraType"));
        optOne = new OptionButton(fraType, QStringLiteral("optOne"));
        txtName = new TextBox(this, QStringLiteral("txtName"));
        chkNetwork = new CheckBox(this, QStringLiteral("chkNetwork"));
        lstServer = new ListBox(this, QStringLiteral("lstServer"));
        cmdOK = new CommandButton(this, QStringLiteral("cmdOK"));
        tmrWait = new Timer(this, QStringLiteral("tmrWait"));
        mnuExit = new MenuItem(this, QStringLiteral("mnuExit"));
        Move(2000, 100, 6000, 4000);
    }
    void Form_Load() override { journal << QStringLiteral("load"); }
    void Form_Activate() override { journal << QStringLiteral("activate ") + Name(); }
    void Form_Unload() override { journal << QStringLiteral("unload"); }

    Label* lblTitle;
    Frame* fraType;
    OptionButton* optOne;
    TextBox* txtName;
    CheckBox* chkNetwork;
    ListBox* lstServer;
    CommandButton* cmdOK;
    Timer* tmrWait;
    MenuItem* mnuExit;
};

class OtherForm : public Form
{
public:
    OtherForm()
        : Form(QStringLiteral("frmOther"))
    {
        Move(0, 0, 1500, 4000);
    }
    void Form_Activate() override { journal << QStringLiteral("activate ") + Name(); }
};

FormRef<PageForm> frmPage;
FormRef<OtherForm> frmOther;

QWidget* findWidget(const QString& name)
{
    for (QWidget* widget : QApplication::allWidgets()) {
        if (widget->objectName() == name)
            return widget;
    }
    return nullptr;
}

} // namespace

class TestForm : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_frame.resize(800, 600);
        m_frame.show();
        Form::setMdiArea(&m_frame);
        QVERIFY(QTest::qWaitForWindowExposed(&m_frame));
    }

    void init() { journal.clear(); }

    void cleanup()
    {
        frmPage.Unload();
        frmOther.Unload();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void firstUseLoadsOnce()
    {
        QVERIFY(!frmPage.IsLoaded());
        frmPage->txtName->SetText(QStringLiteral("kept"));
        QVERIFY(frmPage.IsLoaded());
        QCOMPARE(frmPage->txtName->Text(), QStringLiteral("kept"));
        QCOMPARE(journal, QStringList { QStringLiteral("load") });
        QCOMPARE(frmPage->objectName(), QStringLiteral("frmPage"));
    }

    void unloadGivesTheNameUpAtOnceAndTheNextUseIsFresh()
    {
        frmPage->txtName->SetText(QStringLiteral("old"));
        frmPage->Show();
        frmPage.Unload();
        QCOMPARE(journal.last(), QStringLiteral("unload"));
        QVERIFY(!frmPage.IsLoaded());
        // still waiting for deleteLater, yet nobody finds it by name
        QVERIFY(!findWidget(QStringLiteral("frmPage")));
        QVERIFY(!findWidget(QStringLiteral("txtName")));
        QCOMPARE(frmPage->txtName->Text(), QString());
        QVERIFY(findWidget(QStringLiteral("frmPage")));
    }

    void controlsKeepTheirOrderAndTypeNames()
    {
        QStringList walk;
        for (Control* control : frmPage->Controls())
            walk << control->Name() + QLatin1Char(':') + control->TypeName();
        QCOMPARE(walk,
            QStringList({ "lblTitle:Label", "fraType:Frame", "optOne:OptionButton", "txtName:TextBox",
                "chkNetwork:CheckBox", "lstServer:ListBox", "cmdOK:CommandButton", "tmrWait:Timer",
                "mnuExit:Menu" }));
        QVERIFY(!frmPage->tmrWait->HasCaption());
        QVERIFY(frmPage->cmdOK->HasCaption());
    }

    void pagesSitInTheFrameAtTheirPlaceInTwips()
    {
        frmPage->Show();
        QVERIFY(frmPage->subWindow());
        QCOMPARE(frmPage->subWindow()->mdiArea(), &m_frame);
        QCOMPARE(frmPage->subWindow()->geometry(), QRect(133, 7, 400, 267));
        QCOMPARE(frmPage->Left(), 1995);
        QVERIFY(!frmPage->subWindow()->testAttribute(Qt::WA_DeleteOnClose));
        // hidden pages stay loaded
        frmPage->Hide();
        QVERIFY(frmPage.IsLoaded());
        QVERIFY(!frmPage->Visible());
    }

    void showActivatesOnceAndAtOnce()
    {
        frmPage->Show();
        QCOMPARE(journal, QStringList({ "load", "activate frmPage" }));
        frmPage->Show();
        QTest::qWait(20);
        QCOMPARE(journal.size(), 2);
        frmOther->Show();
        QCOMPARE(journal.last(), QStringLiteral("activate frmOther"));
        frmPage->SetFocus();
        QCOMPARE(journal.last(), QStringLiteral("activate frmPage"));
        QTest::qWait(20);
        QCOMPARE(journal, QStringList({ "load", "activate frmPage", "activate frmOther", "activate frmPage" }));
    }

    // The user switching children is an activation, checked once the loop is back.
    void userSwitchActivatesTheOtherForm()
    {
        frmPage->Show();
        frmOther->Show();
        journal.clear();
        m_frame.setActiveSubWindow(frmPage->subWindow());
        QCOMPARE(journal, QStringList());
        QTRY_COMPARE(journal, QStringList { QStringLiteral("activate frmPage") });
        // the same child again is nothing
        m_frame.setActiveSubWindow(frmPage->subWindow());
        QTest::qWait(20);
        QCOMPARE(journal.size(), 1);
    }

    void showAfterHideActivatesAgain()
    {
        frmPage->Show();
        frmPage->Hide();
        journal.clear();
        frmPage->Show();
        QCOMPARE(journal, QStringList { QStringLiteral("activate frmPage") });
    }

private:
    QMdiArea m_frame;
};

QTEST_MAIN(TestForm)
#include "tst_form.moc"
