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

    // Stored padded to the 30-byte field and trimmed again on the way back.
    void passwordsRoundTripAndNeverShowInClear()
    {
        const QString passwords[]
            = { QStringLiteral("pass word"), QStringLiteral("  padded  "), QString::fromLatin1("m\xf6tley\xdf"),
                  QStringLiteral("abcdefghijklmnopqrstuvwxyz0123"), QStringLiteral("x") };
        for (const QString& password : passwords) {
            QString clear = password;
            const QString stored = EncryptText(clear);
            const QString trimmed = password.trimmed();
            QCOMPARE(clear, trimmed + QChar(u'\0'));
            QCOMPARE(stored.size(), trimmed.size());
            if (trimmed.size() > 3)
                QVERIFY(stored != trimmed);
            QString fromFile = (stored + QString(30 - stored.size(), QLatin1Char(' '))).trimmed();
            QCOMPARE(DecryptText(fromFile), trimmed);
        }
        QCOMPARE(m_bar.currentMessage(), QStringLiteral("untouched"));
    }

    void emptyResultsAreReported()
    {
        QString blanks = QStringLiteral("    ");
        QCOMPARE(EncryptText(blanks), QString());
        QCOMPARE(blanks, QString(QChar(u'\0'))); // the library gets a lone NUL
        QCOMPARE(m_bar.currentMessage(), QStringLiteral("KQM7046E Encryption returned a null string"));
        QString nothing;
        QCOMPARE(DecryptText(nothing), QString());
        QCOMPARE(m_bar.currentMessage(), QStringLiteral("KQM7045E Decryption returned a null string"));
    }

private:
    QStatusBar m_bar;
};

QTEST_MAIN(TestCredentials)
#include "tst_credentials.moc"
