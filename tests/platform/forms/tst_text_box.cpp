#include "platform/forms/form.h"
#include "platform/forms/text_box.h"

#include <QTest>

class TestTextBox : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_form = new Form(QStringLiteral("frmTest"), Form::Kind::Window);
        m_text = new TextBox(m_form, QStringLiteral("txtStartDate"));
        m_text->setGeometry(10, 10, 200, 24);
        m_changes = 0;
        m_text->Change.connect([this] { ++m_changes; });
    }
    void cleanup() { delete m_form; }

    void changeComesFromTypingAndFromNewText()
    {
        m_text->SetText(QStringLiteral("2002"));
        m_text->SetText(QStringLiteral("2002"));
        QCOMPARE(m_changes, 1);
        m_form->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_form));
        m_text->setFocus();
        m_text->end(false);
        QTest::keyClicks(m_text, QStringLiteral("01"));
        QCOMPARE(m_text->Text(), QStringLiteral("200201"));
        QCOMPARE(m_changes, 3);
    }

    void maxLengthLimitsTyping()
    {
        m_text->SetMaxLength(8);
        m_form->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_form));
        m_text->setFocus();
        QTest::keyClicks(m_text, QStringLiteral("2002010199"));
        QCOMPARE(m_text->Text(), QStringLiteral("20020101"));
        m_text->SetMaxLength(0);
        QCOMPARE(m_text->MaxLength(), 0);
    }

    void selectionByStartAndLength()
    {
        m_text->SetText(QStringLiteral("server01"));
        m_text->SetSelStart(0);
        m_text->SetSelLength(m_text->Text().size());
        QCOMPARE(m_text->SelText(), QStringLiteral("server01"));
        QCOMPARE(m_text->SelStart(), 0);
        QCOMPARE(m_text->SelLength(), 8);
        m_text->SetSelStart(6);
        m_text->SetSelLength(99);
        QCOMPARE(m_text->SelText(), QStringLiteral("01"));
    }

    void keyDownComesBeforeTheCharacter()
    {
        QString textAtKeyDown;
        int code = 0;
        m_text->KeyDown.connect([&](int keyCode, int) {
            code = keyCode;
            textAtKeyDown = m_text->Text();
        });
        m_form->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_form));
        m_text->setFocus();
        QTest::keyClick(m_text, Qt::Key_7);
        QCOMPARE(code, 55);
        QCOMPARE(textAtKeyDown, QString());
        QCOMPARE(m_text->Text(), QStringLiteral("7"));
    }

private:
    Form* m_form = nullptr;
    TextBox* m_text = nullptr;
    int m_changes = 0;
};

QTEST_MAIN(TestTextBox)
#include "tst_text_box.moc"
