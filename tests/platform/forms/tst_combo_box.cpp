#include "platform/forms/combo_box.h"
#include "platform/forms/form.h"

#include <QLineEdit>
#include <QTest>

class TestComboBox : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_form = new Form(QStringLiteral("frmTest"), Form::Kind::Window);
        m_combo = new ComboBox(m_form, QStringLiteral("cmbIDs"));
        m_combo->setGeometry(10, 10, 200, 24);
        m_clicks = 0;
        m_changes = 0;
        m_combo->Click.connect([this] { ++m_clicks; });
        m_combo->Change.connect([this] { ++m_changes; });
    }
    void cleanup() { delete m_form; }

    void firstItemIsNotSelected()
    {
        m_combo->AddItem(QStringLiteral("first"));
        m_combo->AddItem(QStringLiteral("second"));
        QCOMPARE(m_combo->ListIndex(), -1);
        QCOMPARE(m_combo->Text(), QString());
        QCOMPARE(m_clicks + m_changes, 0);
    }

    void addingKeepsWhatWasTypedAndWhatWasSelected()
    {
        m_combo->SetText(QStringLiteral("typed"));
        m_combo->AddItem(QStringLiteral("entry"));
        QCOMPARE(m_combo->Text(), QStringLiteral("typed"));
        m_combo->SetListIndex(0);
        m_combo->AddItem(QStringLiteral("another"));
        QCOMPARE(m_combo->ListIndex(), 0);
    }

    void listIndexRaisesClickAndTypingRaisesChange()
    {
        m_combo->AddItem(QStringLiteral("first"));
        m_combo->SetListIndex(0);
        QCOMPARE(m_clicks, 1);
        QCOMPARE(m_changes, 0);
        QCOMPARE(m_combo->Text(), QStringLiteral("first"));
        m_form->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_form));
        m_combo->setFocus();
        QTest::keyClicks(m_combo->lineEdit(), QStringLiteral("xy"));
        QCOMPARE(m_changes, 2);
        QCOMPARE(m_clicks, 1);
        emit m_combo->activated(0);
        QCOMPARE(m_clicks, 2);
    }

    void setTextRaisesChangeOnlyForNewText()
    {
        m_combo->SetText(QStringLiteral("abc"));
        m_combo->SetText(QStringLiteral("abc"));
        QCOMPARE(m_changes, 1);
    }

    void sortedComboIgnoresCase()
    {
        m_combo->SetSorted(true);
        for (const char* text : { "SE38", "se16", "AL08", "Se11" })
            m_combo->AddItem(QString::fromLatin1(text));
        QCOMPARE(m_combo->List(0), QStringLiteral("AL08"));
        QCOMPARE(m_combo->List(1), QStringLiteral("Se11"));
        QCOMPARE(m_combo->List(2), QStringLiteral("se16"));
        QCOMPARE(m_combo->List(3), QStringLiteral("SE38"));
        QCOMPARE(m_combo->ListIndex(), -1);
    }

private:
    Form* m_form = nullptr;
    ComboBox* m_combo = nullptr;
    int m_clicks = 0;
    int m_changes = 0;
};

QTEST_MAIN(TestComboBox)
#include "tst_combo_box.moc"
