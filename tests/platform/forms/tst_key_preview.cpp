#include "platform/forms/command_button.h"
#include "platform/forms/form.h"
#include "platform/forms/list_box.h"
#include "platform/forms/msg_box.h"
#include "platform/forms/text_box.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

namespace {

class EditorForm : public Form
{
public:
    EditorForm()
        : Form(QStringLiteral("frmEditor"), Kind::Window)
    {
        SetKeyPreview(true);
        resize(300, 200);
        txtServer = new TextBox(this, QStringLiteral("txtServer"));
        txtServer->setGeometry(10, 10, 200, 24);
        lstServer = new ListBox(this, QStringLiteral("lstServer"));
        lstServer->setGeometry(10, 40, 200, 100);
    }
    void Form_KeyDown(int KeyCode, int Shift) override { keys << QStringLiteral("%1/%2").arg(KeyCode).arg(Shift); }

    TextBox* txtServer;
    ListBox* lstServer;
    QStringList keys;
};

} // namespace

class TestKeyPreview : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_form = new EditorForm;
        m_form->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_form));
    }
    void cleanup() { delete m_form; }

    // Return travels on from the line edit to its parents: still one key for the form. Shift is a
    // key of its own, as the classic key codes have it.
    void everyKeyOnceFromAnyControl()
    {
        m_form->txtServer->setFocus();
        QTest::keyClick(m_form->txtServer, Qt::Key_Return);
        QTest::keyClick(m_form->txtServer, Qt::Key_Escape);
        m_form->lstServer->setFocus();
        QTest::keyClick(m_form->lstServer, Qt::Key_Return);
        QTest::keyClick(m_form->lstServer, Qt::Key_A, Qt::ShiftModifier);
        QCOMPARE(m_form->keys, QStringList({ "13/0", "27/0", "13/0", "16/1", "65/1" }));
    }

    void keysStillArriveAfterAModalBox()
    {
        QTimer::singleShot(50, [] {
            if (QWidget* box = QApplication::activeModalWidget())
                QTest::keyClick(box, Qt::Key_Return);
        });
        MsgBox(QStringLiteral("KQM7026E You must enter a server"), 0, QStringLiteral("title"));
        m_form->txtServer->setFocus();
        QTest::keyClick(m_form->txtServer, Qt::Key_Return);
        QCOMPARE(m_form->keys, QStringList { "13/0" });
    }

    void formWithoutPreviewSeesNothing()
    {
        m_form->SetKeyPreview(false);
        QTest::keyClick(m_form->txtServer, Qt::Key_Return);
        QVERIFY(m_form->keys.isEmpty());
    }

private:
    EditorForm* m_form = nullptr;
};

QTEST_MAIN(TestKeyPreview)
#include "tst_key_preview.moc"
