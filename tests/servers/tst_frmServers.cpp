#include "platform/clock.h"
#include "platform/forms/check_box.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/file_pickers.h"
#include "platform/forms/label.h"
#include "platform/forms/text_box.h"
#include "platform/support/file_locker.h"
#include "server_files.h"
#include "servers/frmAddServers.h"
#include "servers/frmGetServerFile.h"
#include "servers/frmServers.h"
#include "servers/server_lists.h"
#include "settings/credentials.h"
#include "settings/registry_values.h"
#include "shell/catalogue.h"
#include "shell/frmCurrentConfig.h"
#include "shell/shared_state.h"
#include "support/console_fixture.h"
#include "support/msg_box_recorder.h"

#include <QDir>

namespace {
// two rows under one entry; bytes beyond ASCII, a UTF-8 name among them, pass as they are
const QByteArray Sap1 = serverRecord("sap1.corp", "PRD", "100", "00", "\x80\xff\xe4-1");
const QByteArray Sap1OtherClient = serverRecord("sap1.corp", "PRD", "200", "00");
const QByteArray Sap2 = serverRecord("s\303\274d.corp", "QAS", "001", "01");
const QString Sap2Entry = QString::fromLatin1("s\303\274d.corp 01");

// "server|ID|password|SID|instance|client" into the editor
void fill(const QString& fields)
{
    const QStringList values = fields.split(QLatin1Char('|'));
    TextBox* boxes[] = { frmAddServers->txtServer, frmAddServers->txtID, frmAddServers->txtPW, frmAddServers->txtSID,
        frmAddServers->txtInstanceNo, frmAddServers->txtClient };
    for (int i = 0; i < 6; ++i)
        boxes[i]->SetText(values.value(i));
}
} // namespace

// The server page, its editor and its location page on a running console.
class TestFrmServers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(ConsoleFixture::startWithFirstPage());
        m_path = m_console.binDir + QStringLiteral("/qd7server.dat");
        m_backup = m_console.binDir + QStringLiteral("/qd7server.bak");
        ConsoleFixture::setValue("StatiInput", m_path);
        MDIMainForm->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(MDIMainForm));
    }

    // the page on screen, freshly read
    void init()
    {
        m_boxes.calls.clear();
        ServerFilePath.clear();
        writeBytes(m_path, Sap1 + Sap1OtherClient + Sap2);
        QFile::remove(m_backup);
        frmCurrentConfig->Show();
        // the first page may still be the active one from the start, which a Show doesn't reload
        LoadServerFile(QStringLiteral("frmCurrentConfig"));
        frmServers->Show();
        QCOMPARE(items(frmServers->lstServer), (QStringList { "sap1.corp 00", "sap1.corp 00", Sap2Entry }));
    }

    void recordCountRoundsHalfToEven_data()
    {
        QTest::addColumn<QByteArray>("file"); // null: none
        QTest::addColumn<QStringList>("entries");
        const QByteArray two = Sap1 + Sap1OtherClient;
        const QStringList listed { "sap1.corp 00", "sap1.corp 00" };
        QTest::newRow("100 bytes over: one more")
            << two + serverRecord("sap3.corp").left(100) << listed + QStringList { "sap3.corp " };
        QTest::newRow("91 bytes over: none") << two + QByteArray(91, 'x') << listed;
        QTest::newRow("missing: nothing said") << QByteArray() << QStringList();
    }
    void recordCountRoundsHalfToEven()
    {
        QFETCH(QByteArray, file);
        QFETCH(QStringList, entries);
        QFile::remove(m_path);
        if (!file.isNull())
            writeBytes(m_path, file);
        frmServers->lstServer->Clear();
        LoadServerFile(QStringLiteral("frmServers"));
        QCOMPARE(items(frmServers->lstServer), entries);
        QVERIFY(m_boxes.calls.isEmpty());
        QCOMPARE(status(), QStringLiteral("KQM7047W Loading server data"));
    }

    // The table and the lists stay as they were, the server list disabled until the next good load.
    void heldFileByEachCaller_data()
    {
        QTest::addColumn<QString>("caller");
        QTest::addColumn<bool>("box");
        QTest::newRow("server page") << "frmServers" << true;
        QTest::newRow("special run") << "frmSpecRun" << true;
        QTest::newRow("start-up") << "frmCurrentConfig" << false;
    }
    void heldFileByEachCaller()
    {
        QFETCH(QString, caller);
        QFETCH(bool, box);
        // a second on at each reading: the wait costs no time
        Clock::setSource(
            [moment = QDateTime(QDate(2002, 10, 1), QTime(12, 0))]() mutable { return moment = moment.addSecs(1); });
        {
            const FileLocker collector(m_path);
            QVERIFY(collector.isLocked());
            LoadServerFile(caller);
        }
        Clock::reset();
        QCOMPARE(m_boxes.texts(),
            box ? QStringList { "KQM7035E Cannot open file, another process has locked it" } : QStringList());
        QCOMPARE(status(), QStringLiteral("KQM7044E Server data file is locked by another process."));
        QVERIFY(!frmServers->lstServer->Enabled());
        QCOMPARE(ServerCount, 3);
        QCOMPARE(frmServers->lstServer->ListCount(), 3);
        frmServers->cmdCancel_Click();
        QVERIFY(frmServers->lstServer->Enabled());
    }

    // Records in list order, each entry from the first row that has it.
    void okWritesTheListAndKeepsTheOldFile()
    {
        ConsoleFixture::setValue("SnapInput", QStringLiteral("elsewhere"));
        frmServers->cmdOK->Click.raise();
        QCOMPARE(readBytes(m_backup), Sap1 + Sap1OtherClient + Sap2);
        QCOMPARE(readBytes(m_path), Sap1 + Sap1 + Sap2);
        QCOMPARE(ReadRegValue(QStringLiteral("SnapInput")), m_path);
        QCOMPARE(status(), QStringLiteral("KQM7052I Action successful"));
    }

    // Both rows of the entry go but the count falls by one: the empty last row lists as a blank,
    // matches nothing on OK and is not written.
    void deleteDropsEveryRowOfTheEntry()
    {
        frmServers->lstServer->SetListIndex(1);
        frmServers->cmdDelete_Click();
        QCOMPARE(ServerCount, 2);
        QCOMPARE(ServerTable(2, ServerColumn::Server), QString());
        frmServers->Form_Activate();
        QCOMPARE(frmServers->lstServer->List(1), QStringLiteral(" "));
        frmServers->cmdOK_Click();
        QCOMPARE(readBytes(m_path), Sap2);
    }

    void cancelReadsTheFileBack()
    {
        frmServers->lstServer->SetListIndex(2);
        frmServers->cmdDelete_Click();
        frmServers->cmdEdit_Click(); // nothing selected any more: nothing happens
        ServerFilePath = QStringLiteral("/chosen/qd7server.dat");
        frmServers->cmdCancel_Click();
        QCOMPARE(ServerCount, 3);
        QCOMPARE(frmServers->lstServer->ListCount(), 3);
        QVERIFY(ServerFilePath.isEmpty());
        QCOMPARE(frmServers->lblFilePath->Caption(), m_path);
        QCOMPARE(status(), QStringLiteral("KQM7054W Action cancelled"));
        QVERIFY(!QFile::exists(m_backup));
    }

    // No failure path: the console ends, its last box telling what failed and what is left.
    void okOnAHeldFileEndsTheConsole()
    {
        {
            const FileLocker collector(m_path);
            QVERIFY(collector.isLocked());
            frmServers->cmdOK->Click.raise();
        }
        QCOMPARE(m_console.exitStatuses, QList<int> { 1 });
        m_console.exitStatuses.clear();
        const QString box = m_boxes.texts().value(0);
        QVERIFY(box.startsWith(QStringLiteral("Run-time error '70': Permission denied\n\nSaving the server list failed")));
        QVERIFY(box.contains(m_path));
        QCOMPARE(readBytes(m_path), Sap1 + Sap1OtherClient + Sap2);
    }

    // A short last record has no instance: no row has its trimmed entry, and the table can't shrink.
    void deleteOfARecordCutShortEndsTheConsole()
    {
        writeBytes(m_path, Sap2 + serverRecord("sap3.corp").left(100));
        frmServers->cmdCancel_Click();
        frmServers->lstServer->SetListIndex(1);
        frmServers->cmdDelete->Click.raise();
        QCOMPARE(m_console.exitStatuses, QList<int> { 1 });
        m_console.exitStatuses.clear();
        QVERIFY(m_boxes.texts().value(0).startsWith(
            QStringLiteral("Run-time error '9': Subscript out of range\n\nDeleting \"sap3.corp\" from the server list")));
        QCOMPARE(readBytes(m_path).size(), 183 + 100);
    }

    // One box, the first failure's, its field selected; the editor stays, "Action successful" on the bar.
    void editorChecksStopAtTheFirstFailure_data()
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
    void editorChecksStopAtTheFirstFailure()
    {
        QFETCH(QString, fields);
        QFETCH(int, message);
        QFETCH(QString, selected);
        frmServers->cmdCreate_Click();
        fill(fields);
        frmAddServers->txtServer->SetFocus();
        frmAddServers->cmdOK_Click();
        QCOMPARE(m_boxes.texts(), QStringList { Catalogue::builtInText(message) });
        QCOMPARE(status(), QStringLiteral("KQM7052I Action successful"));
        QVERIFY(QApplication::focusWidget());
        QCOMPARE(QApplication::focusWidget()->objectName(), selected);
        QVERIFY(ConsoleFixture::shown(QStringLiteral("frmAddServers")));
    }

    // Server and SID in any case, with client and instance: a twin; another instance is not.
    void editorRefusesDuplicates()
    {
        frmServers->cmdCreate_Click();
        fill(QStringLiteral("SAP1.corp|u|p|prd|0|100"));
        frmAddServers->cmdOK_Click();
        QCOMPARE(m_boxes.texts(), QStringList { "KQM7025E Duplicate servers not allowed" });
        QCOMPARE(status(), QStringLiteral("KQM7050E Status: Action failed"));
        frmAddServers->txtInstanceNo->SetText(QStringLiteral("1"));
        frmAddServers->cmdOK_Click();
        QCOMPARE(ServerCount, 4);
    }

    // The password enciphered in the file, in clear again in the editor; an edit keeps the row in its place.
    void newServerStoredAndEditedBack_data()
    {
        QTest::addColumn<QString>("fields");
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("stored");
        QTest::newRow("padded, upper case, as typed")
            << "/H/gw.corp/H/sap2.corp |u | Secret-Pw9 | pr|7|1" << 8 << "/H/gw.corp/H/sap2.corp |u |PR|001|07|T";
        QTest::newRow("signed, exponent, no language")
            << "sap2.corp|u|Pw-2|QAS|+0|1e2" << -1 << "sap2.corp|u|QAS|100|00|";
    }
    void newServerStoredAndEditedBack()
    {
        QFETCH(QString, fields);
        QFETCH(int, language);
        QFETCH(QString, stored);
        frmServers->cmdCreate_Click();
        fill(fields);
        if (language >= 0)
            frmAddServers->cmbLanguage->SetListIndex(language);
        frmAddServers->cmdOK_Click();
        using namespace ServerColumn;
        QStringList row;
        for (int column : { Server, ID, SID, Client, Instance, Language })
            row << ServerTable(4, column);
        QCOMPARE(row.join(QLatin1Char('|')), stored);
        QCOMPARE(ServerTable(4, WindowStart) + ServerTable(4, WindowEnd), QStringLiteral("000000240000"));
        QCOMPARE(frmServers->lstServer->List(3), row[0].trimmed() + QLatin1Char(' ') + row[4]);

        frmServers->cmdOK_Click();
        const QByteArray file = readBytes(m_path);
        const QString clear = fields.section(QLatin1Char('|'), 2, 2).trimmed();
        QString typed = clear; // enciphering alters its argument
        QCOMPARE(file.mid(3 * 183 + 130, 30), EncryptText(typed).toLatin1().leftJustified(30, ' '));
        QVERIFY(!file.contains(clear.toLatin1()));
        frmServers->lstServer->SetListIndex(3);
        frmServers->cmdEdit_Click();
        QCOMPARE(frmAddServers->txtPW->Text(), clear);
        QCOMPARE(frmAddServers->cmbLanguage->ListIndex(), language);
        frmAddServers->cmdOK_Click();
        QCOMPARE(ServerCount, 4);
    }

    // Nothing chosen is refused, and Cancel leaves ServerFilePath at the path shown. A file chosen
    // in any case of its name is read, and OK stores it in StatiInput.
    void locationPage()
    {
        const QString share = m_console.dir.filePath(QStringLiteral("share"));
        const QString chosen = share + QStringLiteral("/QD7Server.DAT");
        QVERIFY(QDir().mkpath(share));
        writeBytes(chosen, Sap2);
        frmServers->chkNetwork->SetValue(1);
        QVERIFY(ConsoleFixture::shown(QStringLiteral("frmGetServerFile")));
        QCOMPARE(frmGetServerFile->fileFileList->Path(), m_console.binDir);
        frmGetServerFile->dirDirList->SetPath(m_console.dir.path());
        frmGetServerFile->cmdOK_Click();
        QCOMPARE(m_boxes.texts(),
            QStringList { "KQM7073E Wrong application server file selected. Must select qd7server.dat" });
        QVERIFY(ConsoleFixture::shown(QStringLiteral("frmGetServerFile")));
        frmGetServerFile->cmdCancel_Click();
        QCOMPARE(frmServers->chkNetwork->Value(), 0);
        QCOMPARE(ServerFilePath, m_path);
        QCOMPARE(frmServers->lblFilePath->Caption(), m_path);
        QCOMPARE(status(), QStringLiteral("KQM7054W Action cancelled"));

        frmServers->chkNetwork->SetValue(1);
        frmGetServerFile->dirDirList->SetPath(share);
        frmGetServerFile->fileFileList->setCurrentRow(0);
        frmGetServerFile->cmdOK_Click();
        QCOMPARE(ServerFilePath, chosen);
        QCOMPARE(frmServers->lblFilePath->Caption(), chosen);
        QCOMPARE(items(frmServers->lstServer), QStringList { Sap2Entry });
        frmServers->cmdOK_Click();
        QCOMPARE(ReadRegValue(QStringLiteral("StatiInput")), chosen);
        QCOMPARE(readBytes(chosen), Sap2);
        QCOMPARE(readBytes(m_backup), Sap2); // the copy lies in BinDir all the same
        ConsoleFixture::setValue("StatiInput", m_path);
    }

private:
    ConsoleFixture m_console;
    MsgBoxRecorder m_boxes; // every box is answered and recorded
    QString m_path;
    QString m_backup;
};

QTEST_MAIN(TestFrmServers)
#include "tst_frmServers.moc"
