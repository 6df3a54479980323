#include "platform/forms/command_button.h"
#include "platform/forms/option_button.h"
#include "platform/forms/text_box.h"
#include "repository/data_source.h"
#include "repository/frmDataSource.h"
#include "settings/credentials.h"
#include "settings/registry_values.h"
#include "shell/MDIMainForm.h"
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
        QTest::addColumn<QString>("missing"); // message, client, program named
        QTest::addColumn<QStringList>("written"); // DB, Oracle, INST
        const auto row = [](const char* tag, const char* options, const char* program, const char* missing,
                             const char* written) {
            QTest::newRow(tag) << QString::fromLatin1(options).split(QLatin1Char(' ')) << QString::fromLatin1(program)
                               << QString::fromLatin1(missing) << QString::fromLatin1(written).split(QLatin1Char('|'));
        };
        row("7.3", "optORA optORA73", "sqlldr73.exe", "KQM7064E|Oracle|sqlldr73.exe", "Oracle|73|kept");
        row("8.0", "optORA optORA80", "sqlldr80.exe", "KQM7065E|Oracle|sqlldr80.exe", "Oracle|80|kept");
        row("8.1", "optORA optORA81", "sqlldr.exe", "KQM7066E|Oracle|sqlldr.exe", "Oracle|81|kept");
        row("NVS", "optNVS", "nvscmd.exe", "KQM7037E|NVS|nvscmd.exe", "NVS|kept| Inst 2 ");
        row("MSSQL", "optMSSQL", "ISQL.EXE", "KQM7067E|MS Sql|isql.exe", "MSSQL|kept|kept");
        row("Sybase", "optSybase", "ISQL.EXE", "KQM7068E|Sybase|isql.exe", "Sybase|kept|kept");
        row("Tessaril", "optTessaril", "SQLEDITOR300.EXE", "KQM7069E|Tessaril|sqleditor300.exe", "Tessaril|kept|kept");
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
        const QStringList named = missing.split(QLatin1Char('|'));
        QCOMPARE(m_boxes.texts(),
            QStringList { QStringLiteral("%1 Required file not found, %2 client component %3 not installed or is not "
                                         "in the path. Please refer to the release notes ")
                              .arg(named[0], named[1], named[2]) });
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
        QString typed = QStringLiteral("Secret pw"); // enciphering alters its argument
        ConsoleFixture::setValue("Access", EncryptText(typed));
        QTest::keyClick(frmDataSource->txtPassword, Qt::Key_Escape);
        QCOMPARE(frmDataSource->txtPassword->text(), QStringLiteral("Secret pw"));
        QCOMPARE(frmDataSource->txtPassword->echoMode(), QLineEdit::Password);

        ConsoleFixture::setValue("Access", QStringLiteral("   ")); // can't be deciphered
        LoadDataSource(QStringLiteral("frmDataSource"));
        QCOMPARE(frmDataSource->txtPassword->text(), QString());
        QCOMPARE(status(), QStringLiteral("KQM7045E Decryption returned a null string"));
    }

    // Only the type's exact name and a known Oracle version set an option.
    void loadSetsKnownOptionsOnly_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("DB");
        QTest::addColumn<QString>("Oracle");
        QTest::newRow("Oracle 90: no version") << QStringList { "optORA" } << "Oracle" << "90";
        QTest::newRow("lower case: no type") << QStringList() << "oracle" << "81";
    }
    void loadSetsKnownOptionsOnly()
    {
        QFETCH(QStringList, options);
        ConsoleFixture::storeColumns({ "DB", "Oracle" });
        setOptions({});
        LoadDataSource(QStringLiteral("frmDataSource"));
        QCOMPARE(setOptions(), options);
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

private:
    ConsoleFixture m_console;
    MsgBoxRecorder m_boxes;
};

QTEST_MAIN(TestDataSource)
#include "tst_frmDataSource.moc"
