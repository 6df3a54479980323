// The password cipher through the C interface: the documented vectors, and the properties the
// console and the collectors rely on over many random texts.
#include "qd7gd.h"

#include <QRandomGenerator>
#include <QTest>

#include <cstring>

namespace {

const char kPassPhrase[] = "Hostelm4_Brandiwickt7";

struct Call {
    int32_t count;
    QByteArray text;  // the output up to its NUL
    bool guardIntact; // nothing written past byte 255
};

Call call(decltype(&Encrypt) function, const QByteArray& input, const char* key = kPassPhrase)
{
    char output[256];
    std::memset(output, '#', sizeof output);
    const int32_t n = function(input.constData(), key, output);
    return {n, QByteArray(output, int(strnlen(output, 255))), output[255] == '#'};
}

// 'E' end class, 'I' interior class, 'L' Latin-1 letters, '-' unchanged
char classOf(uchar b, bool atEnd)
{
    if (b >= 0xA1)
        return 'L';
    if (b >= 0x21 && b <= 0x7E)
        return atEnd ? 'E' : 'I';
    return b == 0x20 && !atEnd ? 'I' : '-';
}

} // namespace

class TestCipher : public QObject {
    Q_OBJECT

private slots:
    void vectors_data();
    void vectors();
    void randomTexts();
    void unmappable_data();
    void unmappable();
    void nullArguments();
};

void TestCipher::vectors_data()
{
    // the same vectors as docs/cipher.md
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QByteArray>("clear");
    QTest::addColumn<QByteArray>("enciphered");
    const QByteArray console(kPassPhrase);
    QTest::newRow("Secret pw") << console << QByteArray("Secret pw") << QByteArray("zGqu'FSU0");
    QTest::newRow("one byte") << console << QByteArray("x") << QByteArray("$");
    QTest::newRow("Latin-1") << console << QByteArray::fromHex("706135352077f67264") << QByteArray::fromHex("394343384149ca577b");
    QTest::newRow("tab unchanged") << console << QByteArray("Tab\there") << QByteArray("Yq9\tzgK_");
    QTest::newRow("interior blank") << console << QByteArray("~ ~") << QByteArray("z$o");
    QTest::newRow("30 bytes") << console << QByteArray("0123456789 abcdefghijklmnopqrs")
                              << QByteArray::fromHex("434e2a22653d2c2d505b2a602f4d3e385b27222e2f203b4d3c606f544d55");
    QTest::newRow("0xA0 unchanged") << console << QByteArray::fromHex("a0a1ff") << QByteArray::fromHex("a0a5c8");
    QTest::newRow("other key") << QByteArray("k") << QByteArray("Secret pw") << QByteArray("1O-8hxu?;");
    QTest::newRow("empty key") << QByteArray("") << QByteArray("Secret pw") << QByteArray("2rMR>}JQo");
}

void TestCipher::vectors()
{
    QFETCH(QByteArray, key);
    QFETCH(QByteArray, clear);
    QFETCH(QByteArray, enciphered);
    const Call e = call(Encrypt, clear, key.constData());
    QCOMPARE(e.count, int32_t(clear.size()));
    QCOMPARE(e.text, enciphered);
    const Call d = call(Decrypt, enciphered, key.constData());
    QCOMPARE(d.count, int32_t(clear.size()));
    QCOMPARE(d.text, clear);
}

void TestCipher::randomTexts()
{
    QByteArray interior, ends;
    for (int b = 0x20; b <= 0x7E; ++b)
        interior.append(char(b));
    for (int b = 0xA0; b <= 0xFF; ++b)
        interior.append(char(b));
    interior.append("\x01\t\x1f\x7f\x80\x9f");
    for (const char c : interior)
        if (c != ' ')
            ends.append(c);
    QRandomGenerator random(20240517);
    for (int n = 1; n <= 30; ++n) {
        for (int round = 0; round < 200; ++round) {
            QByteArray clear(n, ' ');
            for (int i = 0; i < n; ++i) {
                const QByteArray& pool = i == 0 || i == n - 1 ? ends : interior;
                clear[i] = pool[random.bounded(int(pool.size()))];
            }
            const Call e = call(Encrypt, clear);
            QCOMPARE(e.count, n);
            QCOMPARE(e.text.size(), n); // no NUL inside
            QVERIFY(e.guardIntact);
            QVERIFY(e.text.front() != ' ' && e.text.back() != ' ');
            for (int i = 0; i < n; ++i) {
                const bool atEnd = i == 0 || i == n - 1;
                QCOMPARE(classOf(uchar(e.text[i]), atEnd), classOf(uchar(clear[i]), atEnd));
                if (classOf(uchar(clear[i]), atEnd) == '-')
                    QCOMPARE(e.text[i], clear[i]);
            }
            const Call d = call(Decrypt, e.text);
            QCOMPARE(d.count, n);
            QCOMPARE(d.text, clear);
        }
    }
    const QByteArray longest(254, '\xe9');
    QCOMPARE(call(Decrypt, call(Encrypt, longest).text).text, longest);
    QVERIFY(call(Encrypt, longest).guardIntact);
}

void TestCipher::unmappable_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("blank") << QByteArray(" ");
    QTest::newRow("leading blank") << QByteArray(" pw");
    QTest::newRow("trailing blank") << QByteArray("pw ");
    QTest::newRow("255 bytes") << QByteArray(255, 'a');
    QTest::newRow("300 bytes") << QByteArray(300, 'a');
}

void TestCipher::unmappable()
{
    QFETCH(QByteArray, input);
    for (const auto function : {Encrypt, Decrypt}) {
        const Call c = call(function, input);
        QCOMPARE(c.count, 0);
        QCOMPARE(c.text, QByteArray());
        QVERIFY(c.guardIntact);
    }
}

void TestCipher::nullArguments()
{
    char output[255] = "stale";
    for (const auto function : {Encrypt, Decrypt}) {
        QCOMPARE(function(nullptr, kPassPhrase, output), 0);
        QCOMPARE(output[0], '\0');
        output[0] = 's';
        QCOMPARE(function("pw", nullptr, output), 0);
        QCOMPARE(output[0], '\0');
        QCOMPARE(function("pw", kPassPhrase, nullptr), 0);
    }
}

QTEST_APPLESS_MAIN(TestCipher)
#include "tst_qd7gd_cipher.moc"
