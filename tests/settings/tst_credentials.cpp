#include "settings/credentials.h"
#include "shell/main_status_bar.h"

#include <QStatusBar>
#include <QTest>

class TestCredentials : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_bar.showMessage(QStringLiteral("untouched"));
        SetMainStatusBar(&m_bar);
    }

    void passwordsRoundTripAndNeverShowInClear_data()
    {
        QTest::addColumn<QString>("password");
        QTest::newRow("plain") << "secret";
        QTest::newRow("inner blank") << "pass word";
        QTest::newRow("outer blanks are trimmed") << "  padded  ";
        QTest::newRow("latin-1 letters") << QString::fromLatin1("m\xf6tley\xdf");
        QTest::newRow("thirty characters") << "abcdefghijklmnopqrstuvwxyz0123";
        QTest::newRow("one character") << "x";
    }

    void passwordsRoundTripAndNeverShowInClear()
    {
        QFETCH(QString, password);
        QString clear = password;
        const QString stored = EncryptText(clear);
        const QString trimmed = password.trimmed();
        QCOMPARE(clear, trimmed + QChar(u'\0'));
        QCOMPARE(stored.size(), trimmed.size());
        if (trimmed.size() > 3)
            QVERIFY(stored != trimmed);
        QVERIFY(!stored.startsWith(QLatin1Char(' ')) && !stored.endsWith(QLatin1Char(' ')));
        QVERIFY(!stored.contains(QChar(u'\0')));
        // the stored form is padded to the field and trimmed again on the way back
        QString fromFile = (stored + QString(30 - stored.size(), QLatin1Char(' '))).trimmed();
        QCOMPARE(DecryptText(fromFile), trimmed);
        QCOMPARE(m_bar.currentMessage(), QStringLiteral("untouched"));
    }

    void blanksOnlyReachTheLibraryAsALoneNul()
    {
        QString blanks = QStringLiteral("    ");
        QCOMPARE(EncryptText(blanks), QString());
        QCOMPARE(blanks, QString(QChar(u'\0')));
        QCOMPARE(m_bar.currentMessage(), QStringLiteral("KQM7046E Encryption returned a null string"));
    }

    void emptyDecryptionIsReported()
    {
        QString nothing;
        QCOMPARE(DecryptText(nothing), QString());
        QCOMPARE(m_bar.currentMessage(), QStringLiteral("KQM7045E Decryption returned a null string"));
    }

private:
    QStatusBar m_bar;
};

QTEST_MAIN(TestCredentials)
#include "tst_credentials.moc"
