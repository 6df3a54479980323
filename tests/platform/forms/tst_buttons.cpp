#include "platform/forms/check_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/form.h"
#include "platform/forms/frame.h"
#include "platform/forms/menu_item.h"
#include "platform/forms/option_button.h"

#include <QTest>

// A check box or option button reacts to its indicator and caption, not to its whole width.
static QPoint onIndicator(const QWidget* button)
{
    return QPoint(6, button->height() / 2);
}

class TestButtons : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_form = new Form(QStringLiteral("frmTest"), Form::Kind::Window);
        m_form->resize(400, 300);
        m_frame = new Frame(m_form, QStringLiteral("fraDatabase"));
        m_frame->setGeometry(0, 0, 200, 200);
        m_oracle = new OptionButton(m_frame, QStringLiteral("optORA"));
        m_oracle->setGeometry(10, 20, 150, 20);
        m_oracle->SetCaption(QStringLiteral("Oracle"));
        m_nvs = new OptionButton(m_frame, QStringLiteral("optNVS"));
        m_nvs->setGeometry(10, 50, 150, 20);
        m_nvs->SetCaption(QStringLiteral("NVS"));
        m_check = new CheckBox(m_form, QStringLiteral("chkNetwork"));
        m_check->setGeometry(210, 20, 150, 20);
        m_check->SetCaption(QStringLiteral("Network"));
        m_form->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_form));
        m_log.clear();
        m_oracle->Click.connect([this] { m_log << QStringLiteral("optORA"); });
        m_nvs->Click.connect([this] { m_log << QStringLiteral("optNVS"); });
        m_check->Click.connect([this] { m_log << QStringLiteral("chk %1").arg(m_check->Value()); });
    }
    void cleanup() { delete m_form; }

    void optionClickOnlyWhenItTurnsOn()
    {
        m_oracle->SetValue(true);
        m_oracle->SetValue(true);
        QCOMPARE(m_log, QStringList { "optORA" });
        m_nvs->SetValue(true);
        QVERIFY(!m_oracle->Value());
        QCOMPARE(m_log, QStringList({ "optORA", "optNVS" }));
        m_nvs->SetValue(false);
        QVERIFY(!m_nvs->Value());
        QVERIFY(!m_oracle->Value());
        QCOMPARE(m_log.size(), 2);
    }

    void userChoosingAnOptionClicksItOnce()
    {
        m_oracle->SetValue(true);
        m_log.clear();
        QTest::mouseClick(m_nvs, Qt::LeftButton, {}, onIndicator(m_nvs));
        QCOMPARE(m_log, QStringList { "optNVS" });
        QTest::mouseClick(m_nvs, Qt::LeftButton, {}, onIndicator(m_nvs));
        QCOMPARE(m_log, QStringList { "optNVS" });
    }

    void checkBoxClicksOnADifferentValue()
    {
        m_check->SetValue(1);
        m_check->SetValue(1);
        m_check->SetValue(0);
        QCOMPARE(m_log, QStringList({ "chk 1", "chk 0" }));
        QTest::mouseClick(m_check, Qt::LeftButton, {}, onIndicator(m_check));
        QCOMPARE(m_log.last(), QStringLiteral("chk 1"));
    }

    void commandButtonClick()
    {
        auto* button = new CommandButton(m_form, QStringLiteral("cmdOK"));
        button->setGeometry(210, 60, 80, 24);
        button->show();
        int clicks = 0;
        button->Click.connect([&] { ++clicks; });
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(clicks, 1);
        button->SetCaption(QStringLiteral("OK"));
        QCOMPARE(button->Caption(), QStringLiteral("OK"));
    }

    // The check mark is the handler's: a click alone doesn't move it.
    void menuCheckMarkBelongsToTheHandler()
    {
        auto* item = new MenuItem(m_form, QStringLiteral("mnuDebugLogFiles"), QStringLiteral("1035"));
        item->SetChecked(false);
        int clicks = 0;
        item->Click.connect([&] { ++clicks; });
        item->trigger();
        QCOMPARE(clicks, 1);
        QVERIFY(!item->Checked());
        item->Click.connect([&] { item->SetChecked(!item->Checked()); });
        item->trigger();
        QVERIFY(item->Checked());
        QCOMPARE(item->objectName(), QStringLiteral("mnuDebugLogFiles"));
    }

private:
    Form* m_form = nullptr;
    Frame* m_frame = nullptr;
    OptionButton* m_oracle = nullptr;
    OptionButton* m_nvs = nullptr;
    CheckBox* m_check = nullptr;
    QStringList m_log;
};

QTEST_MAIN(TestButtons)
#include "tst_buttons.moc"
