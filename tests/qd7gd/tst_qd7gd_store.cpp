// The store file format and the store's lock, below the C interface.
#include "settings_store.h"
#include "store_format.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace qd7gd;

class TestStore : public QObject {
    Q_OBJECT

private slots:
    void writerLines_data();
    void writerLines();
    void everyByteRoundTrips();
    void reading_data();
    void reading();
    void edits_data();
    void edits();
    void lockNotObtained();
};

void TestStore::writerLines_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("plain") << QByteArray("BinDir") << QByteArray("/opt/orvanta/bin") << QByteArray("BinDir=/opt/orvanta/bin\n");
    QTest::newRow("outer blanks") << QByteArray("S") << QByteArray(" 08:00  ") << QByteArray("S= 08:00 \\x20\n");
    QTest::newRow("value punctuation") << QByteArray("V") << QByteArray("=;#[\\\"%") << QByteArray("V==;#[\\\\\"%\n");
    QTest::newRow("high and control") << QByteArray("V") << QByteArray("\xe9\t\x7f\n") << QByteArray("V=\\xE9\\x09\\x7F\\x0A\n");
    QTest::newRow("name with = and blank") << QByteArray("a= b") << QByteArray("1") << QByteArray("a\\x3D\\x20b=1\n");
    QTest::newRow("name like a comment") << QByteArray(";n") << QByteArray("1") << QByteArray("\\x3Bn=1\n");
    QTest::newRow("name like a section") << QByteArray("[n]") << QByteArray("1") << QByteArray("\\x5Bn]=1\n");
    QTest::newRow("name with hash inside") << QByteArray("n#;") << QByteArray("") << QByteArray("n#;=\n");
}

void TestStore::writerLines()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, line);
    QCOMPARE(formatLine(name, value), line);
    QByteArray back;
    QCOMPARE(lookupValue(line, name, &back), Lookup::Found);
    QCOMPARE(back, value);
}

void TestStore::everyByteRoundTrips()
{
    QByteArray all;
    for (int b = 1; b < 256; ++b)
        all.append(char(b));
    const QByteArray line = formatLine(all, all);
    for (const char c : line.chopped(1))
        QVERIFY(c >= 0x20 && c < 0x7F);
    auto doc = StoreDocument::parse(line);
    QVERIFY(doc);
    QCOMPARE(doc->value(all), std::optional<QByteArray>(all));
}

void TestStore::reading_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("lookup"); // Lookup
    QTest::addColumn<QByteArray>("value");
    const int found = int(Lookup::Found), absent = int(Lookup::Absent), corrupt = int(Lookup::Corrupt);
    QTest::newRow("empty file") << QByteArray() << QByteArray("A") << absent << QByteArray();
    QTest::newRow("comments and blank lines") << QByteArray("; c=1\n  # d=2\n\n \t\nA=1\n") << QByteArray("A") << found << QByteArray("1");
    QTest::newRow("comment names no value") << QByteArray("; c=1\n") << QByteArray("; c") << absent << QByteArray();
    QTest::newRow("first = splits") << QByteArray("A= x=y \n") << QByteArray("A") << found << QByteArray(" x=y ");
    QTest::newRow("name blanks count") << QByteArray("A =1\n") << QByteArray("A") << absent << QByteArray();
    QTest::newRow("CRLF") << QByteArray("A=1\r\nB=2\r\n") << QByteArray("A") << found << QByteArray("1");
    QTest::newRow("no final LF") << QByteArray("A=1\nB=2") << QByteArray("B") << found << QByteArray("2");
    QTest::newRow("last of duplicates") << QByteArray("A=1\nA=2\n") << QByteArray("A") << found << QByteArray("2");
    QTest::newRow("lower-case hex") << QByteArray("A=\\xe9\\x3d\n") << QByteArray("A") << found << QByteArray("\xe9=");
    QTest::newRow("raw Latin-1") << QByteArray("A=\xe9\xff\n") << QByteArray("A") << found << QByteArray("\xe9\xff");
    QTest::newRow("escaped name") << QByteArray("\\x41=1\n") << QByteArray("A") << found << QByteArray("1");
    QTest::newRow("line without =") << QByteArray("A=1\nB\n") << QByteArray("A") << corrupt << QByteArray();
    QTest::newRow("section line") << QByteArray("[General]\nA=1\n") << QByteArray("A") << corrupt << QByteArray();
    QTest::newRow("empty name") << QByteArray("=1\n") << QByteArray("A") << corrupt << QByteArray();
    QTest::newRow("unknown escape") << QByteArray("A=\\n\n") << QByteArray("A") << corrupt << QByteArray();
    QTest::newRow("short hex") << QByteArray("A=\\x4\n") << QByteArray("A") << corrupt << QByteArray();
    QTest::newRow("upper-case X") << QByteArray("A=\\X41\n") << QByteArray("A") << corrupt << QByteArray();
    QTest::newRow("backslash at end") << QByteArray("A=1\\\n") << QByteArray("A") << corrupt << QByteArray();
    QTest::newRow("bad name escape") << QByteArray("B\\=1\nA=1\n") << QByteArray("A") << corrupt << QByteArray();
}

void TestStore::reading()
{
    QFETCH(QByteArray, file);
    QFETCH(QByteArray, name);
    QFETCH(int, lookup);
    QFETCH(QByteArray, value);
    QByteArray got;
    QCOMPARE(int(lookupValue(file, name, &got)), lookup);
    QCOMPARE(got, value);
    // the whole-document parse agrees with the look-up
    const auto doc = StoreDocument::parse(file);
    QCOMPARE(!doc, lookup == int(Lookup::Corrupt));
    if (doc)
        QCOMPARE(doc->value(name).value_or(QByteArray()), value);
}

void TestStore::edits_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("value"); // null: remove
    QTest::addColumn<QByteArray>("after"); // null: nothing to change
    const QByteArray remove;
    const QByteArray text = "; hand comment\r\nA=1\n\n# other\nB=2\n";
    QTest::newRow("replace in place") << text << QByteArray("A") << QByteArray("9 ")
                                      << QByteArray("; hand comment\r\nA=9\\x20\n\n# other\nB=2\n");
    QTest::newRow("append") << text << QByteArray("C") << QByteArray("3") << QByteArray(text + "C=3\n");
    QTest::newRow("append after missing LF") << QByteArray("A=1") << QByteArray("C") << QByteArray("3") << QByteArray("A=1\nC=3\n");
    QTest::newRow("new file gets the header") << QByteArray() << QByteArray("A") << QByteArray("1") << QByteArray(StoreDocument::kHeader + "A=1\n");
    QTest::newRow("unchanged") << text << QByteArray("B") << QByteArray("2") << QByteArray();
    QTest::newRow("CRLF line keeps its CR") << QByteArray("A=1\r\n") << QByteArray("A") << QByteArray("2") << QByteArray("A=2\r\n");
    QTest::newRow("last duplicate is replaced") << QByteArray("A=1\nA=2\n") << QByteArray("A") << QByteArray("3") << QByteArray("A=1\nA=3\n");
    QTest::newRow("remove every duplicate") << QByteArray("A=1\nB=2\nA=3") << QByteArray("A") << remove << QByteArray("B=2\n");
    QTest::newRow("remove absent") << text << QByteArray("Z") << remove << QByteArray();
}

void TestStore::edits()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, after);
    auto doc = StoreDocument::parse(before);
    QVERIFY(doc);
    const bool changed = value.isNull() ? doc->remove(name) : doc->setValue(name, value);
    QCOMPARE(changed, !after.isNull());
    QCOMPARE(doc->bytes(), after.isNull() ? before : after);
}

void TestStore::lockNotObtained()
{
    QTemporaryDir dir;
    const QByteArray path = QFile::encodeName(dir.path() + "/qd7gd.ini");
    SettingsStore store(path, 300);
    QCOMPARE(store.write("A", "1"), StoreOk);
    const int held = ::open((path + ".lock").constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    QVERIFY(held >= 0 && ::flock(held, LOCK_EX | LOCK_NB) == 0);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(store.write("A", "2"), StoreCannotWrite);
    QVERIFY(timer.elapsed() >= 300);
    QCOMPARE(store.write("A", "1"), StoreOk); // unchanged: no lock needed
    ::close(held);
    QCOMPARE(store.write("A", "2"), StoreOk);
    QByteArray value;
    QCOMPARE(store.read("A", &value), StoreOk);
    QCOMPARE(value, QByteArray("2"));
}

QTEST_APPLESS_MAIN(TestStore)
#include "tst_qd7gd_store.moc"
