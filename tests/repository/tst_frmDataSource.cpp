#include "platform/forms/command_button.h"
#include "platform/forms/option_button.h"
#include "platform/forms/text_box.h"
#include "platform/runtime_error.h"
#include "repository/data_source.h"
#include "repository/frmDataSource.h"
#include "settings/credentials.h"
#include "settings/registry_values.h"
#include "shell/MDIMainForm.h"
#include "shell/frmCurrentConfig.h"
#include "shell/message_boxes.h"
#include "support/console_fixture.h"
#include "support/msg_box_recorder.h"

#include <QStatusBar>

namespace {

QString status()
{
    return MDIMainForm->staMainStatusBar->currentMessage();
}

// DB, Oracle, INST, User, DSN and the deciphered Access.
QStringList stored()
{
    QStringList values;
    for (const char* name : { "DB", "Oracle", "INST", "User", "DSN" })
        values << ReadRegValue(QString::fromLatin1(name));
    QString access = ReadRegValue(QStringLiteral("Access"));
    return values << (access == QLatin1String("kept") ? access : DecryptText(access));
}

QString clientMissing(const char* id, const char* client, const char* program)
{
    return QStringLiteral("%1 Required file not found, %2 client component %3 not installed or is not in the path. "
                          "Please refer to the release notes ")
        .arg(QLatin1String(id), QLatin1String(client), QLatin1String(program));
}

QStringList setOptions()
{
    QStringList set;
    for (auto* option : frmDataSource->findChildren<OptionButton*>()) {
        if (option->Value())
            set << option->Name();
    }
    return set;
}

void setOptions(const QStringList& names)
{
    for (auto* option : frmDataSource->findChildren<OptionButton*>())
        option->SetValue(false);
    for (const QString& name : names)
        frmDataSource->findChild<OptionButton*>(name)->SetValue(true);
}

} // namespace

// The repository page on a running console: what OK writes, refuses and leaves alone, and what the
// activation and Cancel bring back.
class TestDataSource : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("PATH", QFile::encodeName(m_console.binDir + QLatin1Char(':')));
        QVERIFY(ConsoleFixture::startWithFirstPage());
        frmDataSource->Show();
    }

    void init()
    {
        for (const char* name : { "DB", "Oracle", "INST", "User", "DSN", "Access" })
            ConsoleFixture::setValue(name, QStringLiteral("kept"));
        m_boxes.calls.clear();
        frmDataSource->Form_Activate();
    }

    void saveByType_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("missing");
        QTest::addColumn<QStringList>("written"); // DB, Oracle, INST

        QTest::newRow("7.3") << QStringList { "optORA", "optORA73" } << "sqlldr73.exe"
                             << clientMissing("KQM7064E", "Oracle", "sqlldr73.exe")
                             << QStringList { "Oracle", "73", "kept" };
        QTest::newRow("8.0") << QStringList { "optORA", "optORA80" } << "sqlldr80.exe"
                             << clientMissing("KQM7065E", "Oracle", "sqlldr80.exe")
                             << QStringList { "Oracle", "80", "kept" };
        QTest::newRow("8.1") << QStringList { "optORA", "optORA81" } << "sqlldr.exe"
                             << clientMissing("KQM7066E", "Oracle", "sqlldr.exe")
                             << QStringList { "Oracle", "81", "kept" };
        QTest::newRow("NVS") << QStringList { "optNVS" } << "nvscmd.exe"
                             << clientMissing("KQM7037E", "NVS", "nvscmd.exe")
                             << QStringList { "NVS", "kept", " Inst 2 " };
        QTest::newRow("MSSQL") << QStringList { "optMSSQL" } << "ISQL.EXE"
                               << clientMissing("KQM7067E", "MS Sql", "isql.exe")
                               << QStringList { "MSSQL", "kept", "kept" };
        QTest::newRow("Sybase") << QStringList { "optSybase" } << "ISQL.EXE"
                                << clientMissing("KQM7068E", "Sybase", "isql.exe")
                                << QStringList { "Sybase", "kept", "kept" };
        QTest::newRow("Tessaril") << QStringList { "optTessaril" } << "SQLEDITOR300.EXE"
                                  << clientMissing("KQM7069E", "Tessaril", "sqleditor300.exe")
                                  << QStringList { "Tessaril", "kept", "kept" };
    }

    void saveByType()
    {
        QFETCH(QStringList, options);
        QFETCH(QString, program);
        QFETCH(QString, missing);
        QFETCH(QStringList, written);

        setOptions(options);
        frmDataSource->txtNVSinst->SetText(QStringLiteral(" Inst 2 "));
        frmDataSource->txtUserID->SetText(QStringLiteral("  new user "));
        frmDataSource->txtDSN->SetText(QStringLiteral("NEWDSN "));
        frmDataSource->txtPassword->SetText(QStringLiteral(" Pass word"));

        // without the client: its message, the failed status, nothing written
        QTest::mouseClick(frmDataSource->cmdOK, Qt::LeftButton);
        QCOMPARE(m_boxes.texts(), QStringList { missing });
        QCOMPARE(m_boxes.calls.first().title, QStringLiteral("KQM7049I Orvanta Monitor 5.1.0 - Vantrel"));
        QCOMPARE(status(), QStringLiteral("KQM7050E Status: Action failed"));
        QCOMPARE(stored(), QStringList(6, QStringLiteral("kept")));

        // with it on the PATH: the type's values, then the fields trimmed, the password enciphered
        QFile client(m_console.binDir + QLatin1Char('/') + program);
        QVERIFY(client.open(QIODevice::WriteOnly));
        QTest::mouseClick(frmDataSource->cmdOK, Qt::LeftButton);
        QVERIFY(client.remove());
        QCOMPARE(status(), QStringLiteral("KQM7052I Action successful"));
        QCOMPARE(stored(), written + QStringList({ "new user", "NEWDSN", "Pass word" }));
        QVERIFY(ReadRegValue(QStringLiteral("Access")) != QLatin1String("Pass word"));
    }

    void noTypeIsRefused()
    {
        setOptions({});
        frmDataSource->txtUserID->SetText(QStringLiteral("someone"));
        QTest::keyClick(frmDataSource->txtUserID, Qt::Key_Return); // Enter is OK from any field
        QCOMPARE(m_boxes.texts(), QStringList { "KQM7038E Database type must be selected" });
        QCOMPARE(stored(), QStringList(6, QStringLiteral("kept")));
    }

    void passwordComesBackDeciphered()
    {
        QString typed = QStringLiteral("Secret pw");
        ConsoleFixture::setValue("Access", EncryptText(typed));
        QTest::keyClick(frmDataSource->txtPassword, Qt::Key_Escape);
        QCOMPARE(frmDataSource->txtPassword->text(), QStringLiteral("Secret pw"));
        QCOMPARE(frmDataSource->txtPassword->echoMode(), QLineEdit::Password);

        ConsoleFixture::setValue("Access", QStringLiteral("   ")); // can't be deciphered
        LoadDataSource(QStringLiteral("frmDataSource"));
        QCOMPARE(frmDataSource->txtPassword->text(), QString());
        QCOMPARE(status(), QStringLiteral("KQM7045E Decryption returned a null string"));
    }

    void loadByCaller_data()
    {
        QTest::addColumn<QString>("caller");
        QTest::addColumn<QString>("db");
        QTest::addColumn<QString>("oracle");
        QTest::addColumn<QStringList>("options");
        QTest::newRow("Oracle 81") << "frmDataSource" << "Oracle" << "81" << QStringList { "optORA", "optORA81" };
        QTest::newRow("Oracle 90") << "frmDataSource" << "Oracle" << "90" << QStringList { "optORA" };
        QTest::newRow("overview: no version") << "frmCurrentConfig" << "Oracle" << "81" << QStringList { "optORA" };
        QTest::newRow("lower case: no type") << "frmDataSource" << "oracle" << "81" << QStringList();
    }

    void loadByCaller()
    {
        QFETCH(QString, caller);
        QFETCH(QString, db);
        QFETCH(QString, oracle);
        QFETCH(QStringList, options);

        ConsoleFixture::setValue("DB", db);
        ConsoleFixture::setValue("Oracle", oracle);
        setOptions({});
        for (TextBox* field : { frmDataSource->txtUserID, frmDataSource->txtDSN, frmCurrentConfig->txtDataSource })
            field->SetText(QStringLiteral("typed"));
        LoadDataSource(caller);
        QCOMPARE(setOptions(), options);
        const bool own = caller == QLatin1String("frmDataSource");
        QCOMPARE(frmDataSource->txtUserID->Text(), own ? QStringLiteral("kept") : QStringLiteral("typed"));
        QCOMPARE(frmCurrentConfig->txtDataSource->Text(), own ? QStringLiteral("typed") : QStringLiteral("kept"));
    }

    void cancelAfterSwitchingRestoresOracle()
    {
        ConsoleFixture::setValue("DB", QStringLiteral("Oracle"));
        ConsoleFixture::setValue("Oracle", QStringLiteral("80"));
        frmDataSource->Form_Activate();
        QTest::mouseClick(frmDataSource->optNVS, Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(setOptions(), QStringList { "optNVS" });
        QVERIFY(!frmDataSource->optORA80->Enabled() && frmDataSource->txtNVSinst->Enabled());
        QTest::mouseClick(frmDataSource->cmdCancel, Qt::LeftButton);
        QCOMPARE(setOptions(), QStringList({ "optORA", "optORA80" }));
        QVERIFY(frmDataSource->optORA80->Enabled() && !frmDataSource->txtNVSinst->Enabled());
        QCOMPARE(status(), QStringLiteral("KQM7051I Status: Ready"));
    }

    void failurePathBox()
    {
        ShowFailure(RuntimeError(76, QStringLiteral("Writing")));
        QCOMPARE(m_boxes.texts(),
            QStringList { "KQM7001E Error encountered Path not found , KQM7002E  Error number = 76" });
    }

private:
    ConsoleFixture m_console;
    MsgBoxRecorder m_boxes;
};

QTEST_MAIN(TestDataSource)
#include "tst_frmDataSource.moc"
