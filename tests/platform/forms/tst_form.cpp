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

#include <algorithm>

namespace {

QStringList journal;

class PageForm : public Form
{
public:
    PageForm()
        : Form(QStringLiteral("frmPage"))
    {
        new Label(this, QStringLiteral("lblTitle"));
        new OptionButton(new Frame(this, QStringLiteral("fraType")), QStringLiteral("optOne"));
        txtName = new TextBox(this, QStringLiteral("txtName"));
        new CheckBox(this, QStringLiteral("chkNetwork"));
        new ListBox(this, QStringLiteral("lstServer"));
        new CommandButton(this, QStringLiteral("cmdOK"));
        new Timer(this, QStringLiteral("tmrWait"));
        new MenuItem(this, QStringLiteral("mnuExit"));
        Move(2000, 100, 6000, 4000);
    }
    void Form_Load() override { journal << QStringLiteral("load"); }
    void Form_Activate() override { journal << QStringLiteral("activate ") + Name(); }
    void Form_Unload() override { journal << QStringLiteral("unload"); }

    TextBox* txtName;
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

bool widgetNamed(const QString& name)
{
    const QWidgetList widgets = QApplication::allWidgets();
    return std::any_of(widgets.begin(), widgets.end(), [&](QWidget* widget) { return widget->objectName() == name; });
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

    // First use loads once; Unload gives the name up at once, and the next use is a fresh form.
    void firstUseLoadsAndUnloadGivesTheNameUp()
    {
        QVERIFY(!frmPage.IsLoaded());
        frmPage->txtName->SetText(QStringLiteral("kept"));
        QCOMPARE(frmPage->txtName->Text(), QStringLiteral("kept"));
        QCOMPARE(journal, QStringList { QStringLiteral("load") });
        frmPage->Show();
        frmPage.Unload();
        QCOMPARE(journal.last(), QStringLiteral("unload"));
        QVERIFY(!frmPage.IsLoaded());
        // still waiting for deleteLater, yet nobody finds it by name
        QVERIFY(!widgetNamed(QStringLiteral("frmPage")));
        QVERIFY(!widgetNamed(QStringLiteral("txtName")));
        QCOMPARE(frmPage->txtName->Text(), QString());
        QVERIFY(widgetNamed(QStringLiteral("frmPage")));
    }

    void controlsKeepTheirOrderAndTypeNames()
    {
        QStringList walk;
        for (Control* control : frmPage->Controls())
            walk << control->Name() + QLatin1Char(':') + control->TypeName();
        QCOMPARE(walk,
            QStringList({ "lblTitle:Label", "fraType:Frame", "optOne:OptionButton", "txtName:TextBox",
                "chkNetwork:CheckBox", "lstServer:ListBox", "cmdOK:CommandButton", "tmrWait:Timer", "mnuExit:Menu" }));
    }

    void pagesSitInTheFrameAtTheirPlaceInTwips()
    {
        frmPage->Show();
        QCOMPARE(frmPage->subWindow()->mdiArea(), &m_frame);
        QCOMPARE(frmPage->subWindow()->geometry(), QRect(133, 7, 400, 267));
        QCOMPARE(frmPage->Left(), 1995);
        QVERIFY(!frmPage->subWindow()->testAttribute(Qt::WA_DeleteOnClose));
        frmPage->Hide(); // hidden pages stay loaded
        QVERIFY(frmPage.IsLoaded());
        QVERIFY(!frmPage->Visible());
    }

    // Show and SetFocus activate at once, and only a form other than the last one; shown again
    // after hiding is an activation.
    void showActivatesOnceAndAtOnce()
    {
        frmPage->Show();
        frmPage->Show();
        frmOther->Show();
        frmPage->SetFocus();
        frmPage->Hide();
        frmPage->Show();
        const QStringList expected { "load", "activate frmPage", "activate frmOther", "activate frmPage",
            "activate frmPage" };
        QCOMPARE(journal, expected);
        QTest::qWait(20);
        QCOMPARE(journal, expected);
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
        m_frame.setActiveSubWindow(frmPage->subWindow()); // the same child again is nothing
        QTest::qWait(20);
        QCOMPARE(journal.size(), 1);
    }

private:
    QMdiArea m_frame;
};

QTEST_MAIN(TestForm)
#include "tst_form.moc"
