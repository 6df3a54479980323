// The password cipher through the C interface: the documented vectors, properties over random texts.
#include "qd7gd.h"

#include <QRandomGenerator>
#include <QTest>

#include <cstring>

namespace {

const char kPassPhrase[] = "Hostelm4_Brandiwickt7";

// A count that disagrees with the text, a NUL inside it or a byte past 255 shows as "<bad output>".
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
    void vectors_data()
    {
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QByteArray>("clear");
        QTest::addColumn<QByteArray>("enciphered");
        const QByteArray console(kPassPhrase);
        const auto hex = QByteArray::fromHex;
        QTest::newRow("Secret pw") << console << QByteArray("Secret pw") << QByteArray("zGqu'FSU0");
        QTest::newRow("one byte") << console << QByteArray("x") << QByteArray("$");
        QTest::newRow("Latin-1") << console << hex("706135352077f67264") << hex("394343384149ca577b");
        QTest::newRow("tab unchanged") << console << QByteArray("Tab\there") << QByteArray("Yq9\tzgK_");
        QTest::newRow("interior blank") << console << QByteArray("~ ~") << QByteArray("z$o");
        QTest::newRow("30 bytes") << console << QByteArray("0123456789 abcdefghijklmnopqrs")
                                  << hex("434e2a22653d2c2d505b2a602f4d3e385b27222e2f203b4d3c606f544d55");
        QTest::newRow("0xA0 unchanged") << console << hex("a0a1ff") << hex("a0a5c8");
        QTest::newRow("other key") << QByteArray("k") << QByteArray("Secret pw") << QByteArray("1O-8hxu?;");
        QTest::newRow("empty key") << QByteArray("") << QByteArray("Secret pw") << QByteArray("2rMR>}JQo");
    }
    void vectors()
    {
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, clear);
        QFETCH(QByteArray, enciphered);
        QCOMPARE(run(Encrypt, clear, key.constData()), enciphered);
        QCOMPARE(run(Decrypt, enciphered, key.constData()), clear);
    }

    // Lengths 1 to 30 (the Password field) and the longest, 254.
    void randomTexts()
    {
        QByteArray interior, ends;
        for (int b = 1; b <= 0xFF; ++b)
            interior.append(char(b));
        ends = QByteArray(interior).replace(' ', "");
        QRandomGenerator random(20240517);
        for (int n = 1; n <= 254; n = n == 30 ? 254 : n + 1) {
            for (int round = 0; round < 200; ++round) {
                QByteArray clear(n, ' ');
                for (int i = 0; i < n; ++i) {
                    const QByteArray& pool = i == 0 || i == n - 1 ? ends : interior;
                    clear[i] = pool[random.bounded(int(pool.size()))];
                }
                const QByteArray e = run(Encrypt, clear);
                QCOMPARE(e.size(), n);
                QVERIFY(e.front() != ' ' && e.back() != ' ');
                QCOMPARE(run(Decrypt, e), clear);
            }
        }
    }

    void unmappableAndNull()
    {
        for (const auto function : { Encrypt, Decrypt }) {
            for (const QByteArray& input :
                { QByteArray(""), QByteArray(" "), QByteArray(" pw"), QByteArray("pw "), QByteArray(255, 'a') })
                QVERIFY2(run(function, input).isEmpty(), input.constData());
            char output[255] = "stale";
            QCOMPARE(function("pw", nullptr, output), 0);
            QCOMPARE(output[0], '\0');
            QCOMPARE(function(nullptr, kPassPhrase, output), 0);
            QCOMPARE(function("pw", kPassPhrase, nullptr), 0);
        }
    }
};

QTEST_APPLESS_MAIN(TestCipher)
#include "tst_qd7gd_cipher.moc"
