#include "platform/forms/combo_box.h"
#include "platform/forms/text_box.h"
#include "server_files.h"
#include "servers/frmAddServers.h"
#include "servers/frmServers.h"
#include "settings/credentials.h"
#include "shell/frmCurrentConfig.h"
#include "shell/shared_state.h"
#include "support/console_fixture.h"
#include "support/msg_box_recorder.h"

#include <QApplication>

namespace {
// server, ID, password, SID, instance, client
void fill(const QStringList& fields)
{
    TextBox* boxes[] = { frmAddServers->txtServer, frmAddServers->txtID, frmAddServers->txtPW, frmAddServers->txtSID,
        frmAddServers->txtInstanceNo, frmAddServers->txtClient };
    for (int i = 0; i < 6; ++i)
        boxes[i]->SetText(fields.value(i));
}
} // namespace

class TestFrmAddServers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        StartConsole(QStringLiteral("qd7console -D"));
        QTRY_VERIFY_WITH_TIMEOUT(ConsoleFixture::shown(QStringLiteral("frmCurrentConfig")), 10000);
        m_path = m_console.binDir + QStringLiteral("/qd7server.dat");
        ConsoleFixture::setValue("StatiInput", m_path);
        MDIMainForm->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(MDIMainForm));
    }

    // the editor open for a new server, beside a file of one
    void init()
    {
        writeBytes(m_path, serverRecord("sap1.corp"));
        frmCurrentConfig->Show();
        frmServers->Show();
        frmServers->cmdCreate_Click();
    }

    void checksStopAtTheFirstFailure_data()
    {
        QTest::addColumn<QStringList>("fields");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("selected");
        const QString qualified = QStringLiteral("KQM7072E Application server must be fully qualified");
        const QString client = QStringLiteral("KQM7034E Client number must be numeric");
        QTest::newRow("nothing") << QStringList() << "KQM7026E You must enter a server" << "txtServer";
        QTest::newRow("short name") << QStringList { "sap2" } << qualified << "txtServer";
        QTest::newRow("router to an address") << QStringList { "/H/gw.corp/H/10.0.0.7" } << qualified << "txtServer";
        QTest::newRow("no id") << QStringList { "sap2.corp", " " } << "KQM7027E You must enter an ID" << "txtID";
        QTest::newRow("blank password") << QStringList { "sap2.corp", "u", "  " } << "KQM7028E You must enter a password"
                                        << "txtPW";
        QTest::newRow("no sid") << QStringList { "sap2.corp", "u", "p" } << "KQM7029E You must enter a SID" << "txtSID";
        QTest::newRow("no instance") << QStringList { "sap2.corp", "u", "p", "s" }
                                     << "KQM7030E You must enter an instance number" << "txtInstanceNo";
        QTest::newRow("instance x") << QStringList { "sap2.corp", "u", "p", "s", "x" }
                                    << "KQM7031E Instance number must be numeric" << "txtInstanceNo";
        QTest::newRow("instance -1") << QStringList { "sap2.corp", "u", "p", "s", "-1" }
                                     << "KQM7032E Instance number must be greater than or equal to zero" << "txtInstanceNo";
        QTest::newRow("no client") << QStringList { "sap2.corp", "u", "p", "s", "1" }
                                   << "KQM7033E You must enter a client number" << "txtClient";
        QTest::newRow("client 1a") << QStringList { "sap2.corp", "u", "p", "s", "1", "1a" } << client << "txtClient";
        QTest::newRow("client -1") << QStringList { "sap2.corp", "u", "p", "s", "1", "-1" } << client << "txtClient";
    }

    // One box, the first failure's; its field selected, the first three leave the focus; the
    // editor stays, and "Action successful" stays on the bar.
    void checksStopAtTheFirstFailure()
    {
        QFETCH(QStringList, fields);
        QFETCH(QString, message);
        QFETCH(QString, selected);
        fill(fields);
        frmAddServers->txtServer->SetFocus();
        MsgBoxRecorder recorder;
        frmAddServers->cmdOK_Click();
        QCOMPARE(recorder.texts(), QStringList { message });
        QCOMPARE(recorder.calls[0].title, QStringLiteral("KQM7049I Orvanta Monitor 5.1.0 - Vantrel"));
        QCOMPARE(status(), QStringLiteral("KQM7052I Action successful"));
        QVERIFY(QApplication::focusWidget());
        QCOMPARE(QApplication::focusWidget()->objectName(), selected);
        QVERIFY(ConsoleFixture::shown(QStringLiteral("frmAddServers")));
    }

    void newServerIsNormalisedAndStored_data()
    {
        QTest::addColumn<QStringList>("fields");
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("stored");
        QTest::newRow("padded, upper case, as typed")
            << QStringList { "/H/gw.corp/H/sap2.corp ", "u ", "p", " pr", "7", "1" } << 8 << "/H/gw.corp/H/sap2.corp |u |PR|001|07|T";
        QTest::newRow("rounded, exponent, no language") << QStringList { "sap2.corp", "u", "p", "QAS", "+0", "1e2" } << -1
                                                        << "sap2.corp|u|QAS|100|00|";
    }

    void newServerIsNormalisedAndStored()
    {
        QFETCH(QStringList, fields);
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
        QCOMPARE(frmServers->lstServer->List(1), fields[0].trimmed() + QLatin1Char(' ') + row[4]);
    }

    // Server and SID in any case, with client and instance: a twin; another instance is not.
    void duplicatesAreRefused()
    {
        fill({ "SAP1.corp", "u", "p", "prd", "0", "100" });
        MsgBoxRecorder recorder;
        frmAddServers->cmdOK_Click();
        QCOMPARE(recorder.texts(), QStringList { "KQM7025E Duplicate servers not allowed" });
        QCOMPARE(status(), QStringLiteral("KQM7050E Status: Action failed"));
        frmAddServers->txtInstanceNo->SetText(QStringLiteral("1"));
        frmAddServers->cmdOK_Click();
        QCOMPARE(ServerCount, 2);
    }

    // Enciphered in the file, in clear in the editor; an edit keeps the row in its place.
    void passwordNeverInClear()
    {
        fill({ "sap2.corp", "u", " Secret-Pw9 ", "QAS", "1", "2" });
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

    void cancelChangesNothing()
    {
        fill({ "sap2.corp", "u", "p", "QAS", "1", "2" });
        frmAddServers->cmdCancel_Click();
        QCOMPARE(ServerCount, 1);
        QVERIFY(ConsoleFixture::shown(QStringLiteral("frmServers")));
        QCOMPARE(status(), QStringLiteral("KQM7054W Action cancelled"));
    }

private:
    ConsoleFixture m_console;
    QString m_path;
};

QTEST_MAIN(TestFrmAddServers)
#include "tst_frmAddServers.moc"
