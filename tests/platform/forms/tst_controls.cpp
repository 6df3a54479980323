#include "platform/forms/check_box.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/do_events.h"
#include "platform/forms/form.h"
#include "platform/forms/frame.h"
#include "platform/forms/list_box.h"
#include "platform/forms/menu_item.h"
#include "platform/forms/msg_box.h"
#include "platform/forms/option_button.h"
#include "platform/forms/text_box.h"
#include "platform/forms/timer.h"
#include "platform/support/failure_of.h"
#include "support/msg_box_recorder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

namespace {

// Every event of its controls lands in one log, and so does every key the form previews.
class LoggingForm : public Form
{
public:
    LoggingForm()
        : Form(QStringLiteral("frmTest"), Kind::Window)
    { }
    void Form_KeyDown(int KeyCode, int Shift) override { log << QStringLiteral("key %1/%2").arg(KeyCode).arg(Shift); }

    QStringList log;
};

} // namespace

class TestControls : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_form = new LoggingForm;
        m_form->resize(450, 300);
        QStringList& log = m_form->log;
        m_list = new ListBox(m_form, QStringLiteral("lstServer"));
        m_list->setGeometry(10, 10, 200, 100);
        m_list->Click.connect([this, &log] { log << QStringLiteral("lst %1").arg(m_list->ListIndex()); });
        m_combo = new ComboBox(m_form, QStringLiteral("cmbIDs"));
        m_combo->setGeometry(10, 120, 200, 24);
        m_combo->Click.connect([&log] { log << QStringLiteral("cmb click"); });
        m_combo->Change.connect([&log] { log << QStringLiteral("cmb change"); });
        m_text = new TextBox(m_form, QStringLiteral("txtStartDate"));
        m_text->setGeometry(10, 150, 200, 24);
        m_text->Change.connect([&log] { log << QStringLiteral("txt change"); });
        auto* frame = new Frame(m_form, QStringLiteral("fraDatabase"));
        frame->setGeometry(220, 10, 200, 100);
        m_oracle = new OptionButton(frame, QStringLiteral("optORA"));
        m_oracle->setGeometry(10, 20, 150, 20);
        m_oracle->Click.connect([&log] { log << QStringLiteral("optORA"); });
        m_nvs = new OptionButton(frame, QStringLiteral("optNVS"));
        m_nvs->setGeometry(10, 50, 150, 20);
        m_nvs->Click.connect([&log] { log << QStringLiteral("optNVS"); });
        m_check = new CheckBox(m_form, QStringLiteral("chkNetwork"));
        m_check->setGeometry(220, 120, 150, 20);
        m_check->Click.connect([this, &log] { log << QStringLiteral("chk %1").arg(m_check->Value()); });
        m_form->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_form));
    }
    void cleanup() { delete m_form; }

    // Adding never selects; a sorted list ignores case and keeps equals in the order they came.
    void listAddsWithoutSelecting()
    {
        m_list->SetSorted(true);
        m_list->AddItem(QStringLiteral("delta"));
        m_list->AddItems({ "Bravo", "alpha", "charlie", "BRAVO", "bravo", "Zulu", "echo" });
        QStringList items;
        for (int i = 0; i < m_list->ListCount(); ++i)
            items << m_list->List(i);
        QCOMPARE(items, QStringList({ "alpha", "Bravo", "BRAVO", "bravo", "charlie", "delta", "echo", "Zulu" }));
        QCOMPARE(m_list->List(8), QString());
        QCOMPARE(m_list->ListIndex(), -1);
        QVERIFY(m_form->log.isEmpty());
    }

    // Setting ListIndex clicks every time, even to the same row or to none; removing and clearing
    // never do, and removing the selected row leaves no selection rather than the row after it.
    // The current row a view sets when it gets the focus is no selection; a click is.
    void listIndexClicksEveryTime()
    {
        m_list->AddItems({ "one", "two", "three" });
        m_list->SetListIndex(1);
        m_list->SetListIndex(1);
        QCOMPARE(m_list->Text(), QStringLiteral("two"));
        QCOMPARE(failureOf([this] { m_list->SetListIndex(3); }).Number, 380);
        m_list->SetListIndex(-1);
        QCOMPARE(m_list->Text(), QString());
        m_list->SetListIndex(1);
        m_list->RemoveItem(0);
        QCOMPARE(m_list->Text(), QStringLiteral("two"));
        m_list->RemoveItem(0);
        QCOMPARE(m_list->ListIndex(), -1);
        m_list->Clear();

        m_list->AddItems({ "one", "two" });
        m_list->setFocus();
        QTest::qWait(10);
        QCOMPARE(m_list->ListIndex(), -1);
        QTest::mouseClick(m_list->viewport(), Qt::LeftButton, {}, m_list->visualItemRect(m_list->item(1)).center());
        QCOMPARE(m_form->log, QStringList({ "lst 1", "lst 1", "lst -1", "lst 1", "lst 1" }));
    }

    void comboAddingKeepsTypedTextAndSelection()
    {
        m_combo->SetSorted(true);
        m_combo->SetText(QStringLiteral("typed"));
        for (const char* text : { "SE38", "se16", "AL08", "Se11" })
            m_combo->AddItem(QString::fromLatin1(text));
        QCOMPARE(m_combo->Text(), QStringLiteral("typed"));
        QCOMPARE(m_combo->ListIndex(), -1);
        QCOMPARE(m_combo->List(1), QStringLiteral("Se11"));
        QCOMPARE(m_combo->List(2), QStringLiteral("se16"));
        m_combo->SetListIndex(3);
        m_combo->AddItem(QStringLiteral("ZZ"));
        QCOMPARE(m_combo->ListIndex(), 3);
    }

    // Setting ListIndex or choosing an entry clicks; typing and new text change.
    void editableComboClicksAndChanges()
    {
        m_combo->AddItem(QStringLiteral("first"));
        QCOMPARE(m_combo->Text(), QString());
        m_combo->SetListIndex(0);
        QCOMPARE(m_combo->Text(), QStringLiteral("first"));
        m_combo->setFocus();
        QTest::keyClicks(m_combo->lineEdit(), QStringLiteral("xy"));
        emit m_combo->activated(0);
        m_combo->SetText(QStringLiteral("abc"));
        m_combo->SetText(QStringLiteral("abc"));
        QCOMPARE(m_form->log, QStringList({ "cmb click", "cmb change", "cmb change", "cmb click", "cmb change" }));
    }

    // KeyDown comes before the character lands; the maximum length stops typing, not KeyDown.
    void textBoxChangeAndKeyDown()
    {
        m_text->SetText(QStringLiteral("2002"));
        m_text->SetText(QStringLiteral("2002"));
        m_text->KeyDown.connect([this](int keyCode, int) {
            m_form->log << QStringLiteral("txt key %1 on %2").arg(keyCode).arg(m_text->Text());
        });
        m_text->SetMaxLength(6);
        m_text->setFocus();
        m_text->end(false);
        QTest::keyClicks(m_text, QStringLiteral("019"));
        QCOMPARE(m_form->log,
            QStringList({ "txt change", "txt key 48 on 2002", "txt change", "txt key 49 on 20020", "txt change",
                "txt key 57 on 200201" }));
        m_text->SetSelStart(4);
        m_text->SetSelLength(99);
        QCOMPARE(m_text->SelText(), QStringLiteral("01"));
    }

    // An option button clicks only when it turns on, a check box on a different value; the user
    // choosing the option that is on already clicks nothing.
    void optionAndCheckBoxClicks()
    {
        m_oracle->SetValue(true);
        m_oracle->SetValue(true);
        m_nvs->SetValue(true);
        QVERIFY(!m_oracle->Value());
        m_nvs->SetValue(false);
        QVERIFY(!m_nvs->Value() && !m_oracle->Value());
        m_check->SetValue(1);
        m_check->SetValue(1);
        m_check->SetValue(0);
        // A check box or option button reacts to its indicator and caption, not to its whole width.
        const QList<QWidget*> clicked { m_nvs, m_nvs, m_check };
        for (QWidget* button : clicked)
            QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(6, button->height() / 2));
        QCOMPARE(m_form->log, QStringList({ "optORA", "optNVS", "chk 1", "chk 0", "optNVS", "chk 1" }));
    }

    // The check mark is the handler's: a click alone doesn't move it.
    void commandButtonAndMenuClick()
    {
        auto* button = new CommandButton(m_form, QStringLiteral("cmdOK"));
        button->setGeometry(220, 160, 80, 24);
        button->show();
        button->Click.connect([this] { m_form->log << QStringLiteral("cmdOK"); });
        QTest::mouseClick(button, Qt::LeftButton);
        auto* item = new MenuItem(m_form, QStringLiteral("mnuDebugLogFiles"), QStringLiteral("1035"));
        item->SetChecked(false);
        item->Click.connect([this] { m_form->log << QStringLiteral("mnu"); });
        item->trigger();
        QVERIFY(!item->Checked());
        item->Click.connect([item] { item->SetChecked(!item->Checked()); });
        item->trigger();
        QVERIFY(item->Checked());
        QCOMPARE(m_form->log, QStringList({ "cmdOK", "mnu", "mnu" }));
    }

    // Return travels on from the line edit to its parents: still one key for the form. Shift is a
    // key of its own, as the classic key codes have it. A modal box in between changes nothing.
    void keyPreviewSeesEveryKeyOnce()
    {
        m_form->SetKeyPreview(true);
        m_text->setFocus();
        QTest::keyClick(m_text, Qt::Key_Return);
        QTest::keyClick(m_text, Qt::Key_Escape);
        m_list->setFocus();
        QTest::keyClick(m_list, Qt::Key_Return);
        QTest::keyClick(m_list, Qt::Key_A, Qt::ShiftModifier);
        QTimer::singleShot(50, [] {
            if (QWidget* box = QApplication::activeModalWidget())
                QTest::keyClick(box, Qt::Key_Return);
        });
        MsgBox(QStringLiteral("KQM7026E You must enter a server"), 0, QStringLiteral("title"));
        m_text->setFocus();
        QTest::keyClick(m_text, Qt::Key_Return);
        m_form->SetKeyPreview(false);
        QTest::keyClick(m_text, Qt::Key_Return);
        QCOMPARE(m_form->log, QStringList({ "key 13/0", "key 27/0", "key 13/0", "key 16/1", "key 65/1", "key 13/0" }));
    }

    // A handler that spins with yields is not entered again by its own timer.
    void timerNeverFiresIntoItsRunningHandler()
    {
        auto* timer = new Timer(m_form, QStringLiteral("tmrSplash"));
        int entered = 0;
        int depth = 0;
        int deepest = 0;
        timer->TimerEvent.connect([&] {
            ++entered;
            deepest = qMax(deepest, ++depth);
            QElapsedTimer spin;
            spin.start();
            while (spin.elapsed() < 60)
                DoEvents();
            --depth;
            if (entered == 2)
                timer->SetTimerEnabled(false);
        });
        timer->SetInterval(10);
        timer->SetTimerEnabled(true);
        QTRY_COMPARE(entered, 2);
        QTest::qWait(50);
        QCOMPARE(entered, 2);
        QCOMPARE(deepest, 1);
    }

    // A real modal box: what scripted checks see and press.
    void msgBoxIsModalAndAnswers()
    {
        // flags, the button pressed, the result, the icon shown
        const int cases[][4] = { { 0, QMessageBox::Ok, 1, QMessageBox::NoIcon },
            { 20, QMessageBox::Yes, 6, QMessageBox::Critical }, { 4, QMessageBox::No, 7, QMessageBox::NoIcon } };
        for (const auto& row : cases) {
            QString seen;
            QTimer::singleShot(20, [&] {
                auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                QVERIFY(box);
                seen = QStringLiteral("%1|%2|%3").arg(box->windowTitle(), box->text()).arg(box->icon());
                box->button(QMessageBox::StandardButton(row[1]))->click();
            });
            QCOMPARE(MsgBox(QStringLiteral("KQM7000W Continue?"), row[0], QStringLiteral("KQM7049I title")), row[2]);
            QCOMPARE(seen, QStringLiteral("KQM7049I title|KQM7000W Continue?|%1").arg(row[3]));
        }
    }

    void msgBoxResponderAnswersAheadAndRecords()
    {
        MsgBoxRecorder boxes;
        boxes.answers = { 7 };
        QCOMPARE(MsgBox(QStringLiteral("first?"), 4, QStringLiteral("t")), 7);
        QCOMPARE(MsgBox(QStringLiteral("second"), 0, QStringLiteral("t")), 1);
        QCOMPARE(boxes.texts(), QStringList({ "first?", "second" }));
        QCOMPARE(boxes.calls.first().flags, 4);
    }

private:
    LoggingForm* m_form = nullptr;
    ListBox* m_list = nullptr;
    ComboBox* m_combo = nullptr;
    TextBox* m_text = nullptr;
    OptionButton* m_oracle = nullptr;
    OptionButton* m_nvs = nullptr;
    CheckBox* m_check = nullptr;
};

QTEST_MAIN(TestControls)
#include "tst_controls.moc"
