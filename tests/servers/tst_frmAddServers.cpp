#include "platform/forms/combo_box.h"
#include "platform/forms/text_box.h"
#include "server_files.h"
#include "servers/frmAddServers.h"
#include "servers/frmServers.h"
#include "settings/credentials.h"
#include "shell/catalogue.h"
#include "shell/frmCurrentConfig.h"
#include "shell/shared_state.h"
#include "support/console_fixture.h"
#include "support/msg_box_recorder.h"

#include <QApplication>

namespace {
// "server|ID|password|SID|instance|client"
void fill(const QString& fields)
{
    const QStringList values = fields.split(QLatin1Char('|'));
    TextBox* boxes[] = { frmAddServers->txtServer, frmAddServers->txtID, frmAddServers->txtPW, frmAddServers->txtSID,
        frmAddServers->txtInstanceNo, frmAddServers->txtClient };
    for (int i = 0; i < 6; ++i)
        boxes[i]->SetText(values.value(i));
}
} // namespace

class TestFrmAddServers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(ConsoleFixture::startWithFirstPage());
        m_path = m_console.binDir + QStringLiteral("/qd7server.dat");
        ConsoleFixture::setValue("StatiInput", m_path);
        MDIMainForm->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(MDIMainForm));
    }

    // the editor open for a new server, beside a file of one
    void init()
    {
        m_boxes.calls.clear();
        writeBytes(m_path, serverRecord("sap1.corp"));
        frmCurrentConfig->Show();
        frmServers->Show();
        frmServers->cmdCreate_Click();
    }

    void checksStopAtTheFirstFailure_data()
    {
        QTest::addColumn<QString>("fields");
        QTest::addColumn<int>("message");
        QTest::addColumn<QString>("selected");
        QTest::newRow("nothing") << QString() << 1428 << "txtServer";
        QTest::newRow("short name") << QStringLiteral("sap2") << 1503 << "txtServer";
        QTest::newRow("no id") << QStringLiteral("sap2.corp| ") << 1429 << "txtID";
        QTest::newRow("blank password") << QStringLiteral("sap2.corp|u|  ") << 1430 << "txtPW";
        QTest::newRow("no sid") << QStringLiteral("sap2.corp|u|p") << 1431 << "txtSID";
        QTest::newRow("no instance") << QStringLiteral("sap2.corp|u|p|s") << 1432 << "txtInstanceNo";
        QTest::newRow("instance x") << QStringLiteral("sap2.corp|u|p|s|x") << 1433 << "txtInstanceNo";
        QTest::newRow("instance -1") << QStringLiteral("sap2.corp|u|p|s|-1") << 1434 << "txtInstanceNo";
        QTest::newRow("no client") << QStringLiteral("sap2.corp|u|p|s|1") << 1435 << "txtClient";
        QTest::newRow("client -1") << QStringLiteral("sap2.corp|u|p|s|1|-1") << 1436 << "txtClient";
    }

    // One box, the first failure's; its field selected, the first three leave the focus; the
    // editor stays, and "Action successful" stays on the bar.
    void checksStopAtTheFirstFailure()
    {
        QFETCH(QString, fields);
        QFETCH(int, message);
        QFETCH(QString, selected);
        fill(fields);
        frmAddServers->txtServer->SetFocus();
        frmAddServers->cmdOK_Click();
        QCOMPARE(m_boxes.texts(), QStringList { Catalogue::builtInText(message) });
        QCOMPARE(status(), QStringLiteral("KQM7052I Action successful"));
        QVERIFY(QApplication::focusWidget());
        QCOMPARE(QApplication::focusWidget()->objectName(), selected);
        QVERIFY(ConsoleFixture::shown(QStringLiteral("frmAddServers")));
    }

    void newServerIsNormalisedAndStored_data()
    {
        QTest::addColumn<QString>("fields");
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("stored");
        QTest::newRow("padded, upper case, as typed")
            << "/H/gw.corp/H/sap2.corp |u |p| pr|7|1" << 8 << "/H/gw.corp/H/sap2.corp |u |PR|001|07|T";
        QTest::newRow("signed, exponent, no language") << "sap2.corp|u|p|QAS|+0|1e2" << -1 << "sap2.corp|u|QAS|100|00|";
    }

    void newServerIsNormalisedAndStored()
    {
        QFETCH(QString, fields);
        QFETCH(int, language);
        QFETCH(QString, stored);
        fill(fields);
        if (language >= 0)
            frmAddServers->cmbLanguage->SetListIndex(language);
        frmAddServers->cmdOK_Click();
        QCOMPARE(ServerCount, 2);
        using namespace ServerColumn;
        QStringList row;
        for (int column : { Server, ID, SID, Client, Instance, Language })
            row << ServerTable(2, column);
        QCOMPARE(row.join(QLatin1Char('|')), stored);
        QCOMPARE(ServerTable(2, WindowStart) + ServerTable(2, WindowEnd), QStringLiteral("000000240000"));
        QCOMPARE(frmServers->lstServer->List(1), row[0].trimmed() + QLatin1Char(' ') + row[4]);
    }

    // Server and SID in any case, with client and instance: a twin; another instance is not.
    void duplicatesAreRefused()
    {
        fill(QStringLiteral("SAP1.corp|u|p|prd|0|100"));
        frmAddServers->cmdOK_Click();
        QCOMPARE(m_boxes.texts(), QStringList { "KQM7025E Duplicate servers not allowed" });
        QCOMPARE(status(), QStringLiteral("KQM7050E Status: Action failed"));
        frmAddServers->txtInstanceNo->SetText(QStringLiteral("1"));
        frmAddServers->cmdOK_Click();
        QCOMPARE(ServerCount, 2);
    }

    // Enciphered in the file, in clear in the editor; an edit keeps the row in its place.
    void passwordNeverInClear()
    {
        fill(QStringLiteral("sap2.corp|u| Secret-Pw9 |QAS|1|2"));
        frmAddServers->cmbLanguage->SetListIndex(1);
        frmAddServers->cmdOK_Click();
        frmServers->cmdOK_Click();
        const QByteArray file = readBytes(m_path);
        QString clear = QStringLiteral("Secret-Pw9");
        QCOMPARE(file.mid(183 + 130, 30), EncryptText(clear).toLatin1().leftJustified(30, ' '));
        QVERIFY(!file.contains("Secret-Pw9"));

        frmServers->lstServer->SetListIndex(1);
        frmServers->cmdEdit_Click();
        QCOMPARE(frmAddServers->txtPW->Text(), QStringLiteral("Secret-Pw9"));
        QCOMPARE(frmAddServers->cmbLanguage->Text(), QStringLiteral("German"));
        frmAddServers->cmdOK_Click();
        QCOMPARE(ServerCount, 2);
    }

private:
    ConsoleFixture m_console;
    MsgBoxRecorder m_boxes; // every box is answered and recorded
    QString m_path;
};

QTEST_MAIN(TestFrmAddServers)
#include "tst_frmAddServers.moc"
