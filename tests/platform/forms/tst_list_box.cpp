#include "platform/forms/form.h"
#include "platform/forms/list_box.h"
#include "platform/runtime_error.h"

#include <QTest>

class TestListBox : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_form = new Form(QStringLiteral("frmTest"), Form::Kind::Window);
        m_list = new ListBox(m_form, QStringLiteral("lstServer"));
        m_list->setGeometry(10, 10, 200, 150);
        m_clicks = 0;
        m_list->Click.connect([this] { ++m_clicks; });
    }
    void cleanup() { delete m_form; }

    void addingNeverSelects()
    {
        m_list->AddItem(QStringLiteral("b"));
        m_list->AddItem(QStringLiteral("a"));
        m_list->AddItems({ QStringLiteral("c"), QStringLiteral("d") });
        QCOMPARE(m_list->ListIndex(), -1);
        QCOMPARE(m_list->ListCount(), 4);
        QCOMPARE(m_list->List(3), QStringLiteral("d"));
        QCOMPARE(m_list->List(0), QStringLiteral("b"));
        QCOMPARE(m_list->List(5), QString());
        QCOMPARE(m_clicks, 0);
    }

    void settingListIndexRaisesClickEveryTime()
    {
        m_list->AddItem(QStringLiteral("one"));
        m_list->AddItem(QStringLiteral("two"));
        int seenInClick = -2;
        m_list->Click.connect([&] { seenInClick = m_list->ListIndex(); });
        m_list->SetListIndex(1);
        QCOMPARE(m_clicks, 1);
        QCOMPARE(seenInClick, 1);
        QCOMPARE(m_list->Text(), QStringLiteral("two"));
        m_list->SetListIndex(1);
        QCOMPARE(m_clicks, 2);
        m_list->SetListIndex(-1);
        QCOMPARE(m_clicks, 3);
        QCOMPARE(m_list->Text(), QString());
    }

    void listIndexOutsideTheListFails()
    {
        m_list->AddItem(QStringLiteral("one"));
        try {
            m_list->SetListIndex(1);
            QFAIL("no failure");
        } catch (const RuntimeError& error) {
            QCOMPARE(error.Number, 380);
        }
        QCOMPARE(m_clicks, 0);
    }

    void sortedListIgnoresCaseAndKeepsArrivalOrderOfEquals()
    {
        m_list->SetSorted(true);
        for (const char* text : { "delta", "Bravo", "alpha", "charlie", "BRAVO", "bravo", "Zulu", "echo" })
            m_list->AddItem(QString::fromLatin1(text));
        QStringList items;
        for (int i = 0; i < m_list->ListCount(); ++i)
            items << m_list->List(i);
        QCOMPARE(items, QStringList({ "alpha", "Bravo", "BRAVO", "bravo", "charlie", "delta", "echo", "Zulu" }));
    }

    // Removing the selected row leaves no selection, not the row that took its place.
    void removeAndClearDoNotClick()
    {
        for (const char* text : { "one", "two", "three" })
            m_list->AddItem(QString::fromLatin1(text));
        m_list->SetListIndex(1);
        m_list->RemoveItem(0);
        QCOMPARE(m_list->Text(), QStringLiteral("two"));
        m_list->RemoveItem(0);
        QCOMPARE(m_list->ListIndex(), -1);
        m_list->Clear();
        QCOMPARE(m_clicks, 1);
        QCOMPARE(m_list->ListIndex(), -1);
    }

    // The current row a view sets when it gets the focus is no selection; a click is.
    void focusIsNoSelectionButAClickIs()
    {
        m_list->AddItem(QStringLiteral("one"));
        m_list->AddItem(QStringLiteral("two"));
        m_form->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_form));
        m_list->setFocus();
        QTest::qWait(10);
        QCOMPARE(m_list->ListIndex(), -1);
        QCOMPARE(m_clicks, 0);
        QTest::mouseClick(m_list->viewport(), Qt::LeftButton, {}, m_list->visualItemRect(m_list->item(1)).center());
        QCOMPARE(m_list->ListIndex(), 1);
        QCOMPARE(m_clicks, 1);
    }

private:
    Form* m_form = nullptr;
    ListBox* m_list = nullptr;
    int m_clicks = 0;
};

QTEST_MAIN(TestListBox)
#include "tst_list_box.moc"
