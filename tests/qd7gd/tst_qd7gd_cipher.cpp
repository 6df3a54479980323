// The password cipher through the C interface: the documented vectors, properties over random texts.
#include "qd7gd.h"

#include <QRandomGenerator>
#include <QTest>

#include <cstring>

namespace {

const char kPassPhrase[] = "Hostelm4_Brandiwickt7";

// A count that disagrees with the text, a NUL inside it or a byte past 255 reads as "<bad output>".
QByteArray run(decltype(&Encrypt) function, const QByteArray& input, const char* key = kPassPhrase)
{
    char output[256];
    std::memset(output, '#', sizeof output);
    const int32_t n = function(input.constData(), key, output);
    if (n < 0 || n > 254 || output[n] != '\0' || std::memchr(output, '\0', size_t(n)) || output[255] != '#')
        return "<bad output>";
    return QByteArray(output, n);
}

} // namespace

class TestCipher : public QObject
{
    Q_OBJECT

private slots:
    // Key, clear and enciphered text; the tab and 0xA0 map to themselves.
    void vectors()
    {
        const auto hex = QByteArray::fromHex;
        const QByteArray vectors[][3] = {
            { kPassPhrase, "Secret pw", "zGqu'FSU0" },
            { kPassPhrase, hex("706135352077f67264"), hex("394343384149ca577b") },
            { kPassPhrase, "Tab\there", "Yq9\tzgK_" },
            { kPassPhrase, "~ ~", "z$o" },
            { kPassPhrase, hex("a0a1ff"), hex("a0a5c8") },
            { "k", "Secret pw", "1O-8hxu?;" },
            { "", "Secret pw", "2rMR>}JQo" },
        };
        for (const auto& [key, clear, enciphered] : vectors) {
            QCOMPARE(run(Encrypt, clear, key.constData()), enciphered);
            QCOMPARE(run(Decrypt, enciphered, key.constData()), clear);
        }
    }

    // Lengths 1 to 30 (the Password field) and the longest, 254; any byte but NUL, no blank at the ends.
    void randomTexts()
    {
        QRandomGenerator random(20240517);
        for (int n = 1; n <= 254; n = n == 30 ? 254 : n + 1) {
            for (int round = 0; round < 200; ++round) {
                QByteArray clear(n, ' ');
                for (int i = 0; i < n; ++i) {
                    clear[i] = char(random.bounded(1, 256));
                    if ((i == 0 || i == n - 1) && clear[i] == ' ')
                        clear[i] = '~';
                }
                const QByteArray e = run(Encrypt, clear);
                QCOMPARE(e.size(), n);
                QVERIFY(e.front() != ' ' && e.back() != ' ');
                QCOMPARE(run(Decrypt, e), clear);
            }
        }
    }

    // Nothing comes of an empty text, one with a blank at either end, or one too long for the buffer.
    void unmappable()
    {
        for (const auto function : { Encrypt, Decrypt }) {
            for (const QByteArray& input :
                { QByteArray(""), QByteArray(" "), QByteArray(" pw"), QByteArray("pw "), QByteArray(255, 'a') })
                QVERIFY2(run(function, input).isEmpty(), input.constData());
        }
    }
};

QTEST_APPLESS_MAIN(TestCipher)
#include "tst_qd7gd_cipher.moc"
