#include "platform/forms/msg_box.h"
#include "support/msg_box_recorder.h"

#include <QApplication>
#include <QAbstractButton>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

class TestMsgBox : public QObject
{
    Q_OBJECT

private slots:
    // A real modal box: what scripted checks see and press.
    void realBoxIsModalAndAnswers_data()
    {
        QTest::addColumn<int>("flags");
        QTest::addColumn<int>("button");
        QTest::addColumn<int>("result");
        QTest::addColumn<int>("icon");
        QTest::newRow("ok") << 0 << int(QMessageBox::Ok) << 1 << int(QMessageBox::NoIcon);
        QTest::newRow("yes with stop sign") << 20 << int(QMessageBox::Yes) << 6 << int(QMessageBox::Critical);
        QTest::newRow("no") << 4 << int(QMessageBox::No) << 7 << int(QMessageBox::NoIcon);
    }

    void realBoxIsModalAndAnswers()
    {
        QFETCH(int, flags);
        QFETCH(int, button);
        QFETCH(int, result);
        QFETCH(int, icon);
        QString seenTitle;
        QString seenText;
        int seenIcon = -1;
        QTimer::singleShot(20, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box);
            seenTitle = box->windowTitle();
            seenText = box->text();
            seenIcon = box->icon();
            box->button(QMessageBox::StandardButton(button))->click();
        });
        QCOMPARE(MsgBox(QStringLiteral("KQM7000W Continue?"), flags, QStringLiteral("KQM7049I title")), result);
        QCOMPARE(seenTitle, QStringLiteral("KQM7049I title"));
        QCOMPARE(seenText, QStringLiteral("KQM7000W Continue?"));
        QCOMPARE(seenIcon, icon);
    }

    void responderAnswersAheadAndRecords()
    {
        MsgBoxRecorder boxes;
        boxes.answers = { 7 };
        QCOMPARE(MsgBox(QStringLiteral("first?"), 4, QStringLiteral("t")), 7);
        QCOMPARE(MsgBox(QStringLiteral("second"), 0, QStringLiteral("t")), 1);
        QCOMPARE(boxes.texts(), QStringList({ "first?", "second" }));
        QCOMPARE(boxes.calls.first().flags, 4);
    }
};

QTEST_MAIN(TestMsgBox)
#include "tst_msg_box.moc"
