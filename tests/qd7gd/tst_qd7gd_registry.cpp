// The store through the C interface: bytes kept, limits, the file by hand and as written, bad stores.
#include "registry_util.h"

class TestRegistry : public QObject
{
    Q_OBJECT

private slots:
    void keepsEveryByte_data()
    {
        QTest::addColumn<QByteArray>("value");
        QByteArray high;
        for (int b = 0x80; b <= 0xFF; ++b)
            high.append(char(b));
        QTest::newRow("leading blank") << QByteArray(" 31");
        QTest::newRow("trailing blank") << QByteArray("08:00 17:30 ");
        QTest::newRow("ini punctuation") << QByteArray("a;b=c \"q\" #x [s] \\ %1");
        QTest::newRow("bytes 0x80-0xFF") << high;
        QTest::newRow("control bytes, line ends") << QByteArray("a\tb\rc\nd\x01\x7f");
        QTest::newRow("254 bytes") << QByteArray(254, 'v');
        QTest::newRow("255 bytes, no NUL") << QByteArray(255, 'w');
    }
    void keepsEveryByte()
    {
        QFETCH(QByteArray, value);
        TempStore store;
        QCOMPARE(setReg("Value", value), 0);
        QCOMPARE(readReg("Value"), value);
        // plain ASCII, one line a value: nothing an editor or another reader could misread
        for (const char c : fileBytes(store.path))
            QVERIFY2(c == '\n' || (c >= 0x20 && c < 0x7F), qPrintable(QString::number(uchar(c), 16)));
    }

    void namesAndLimits()
    {
        TempStore store;
        QCOMPARE(setReg("Probe", "upper"), 0);
        QCOMPARE(setReg("probe", "lower"), 0);
        QCOMPARE(readReg("Probe"), "upper");
        QCOMPARE(readReg("probe"), "lower");
        QCOMPARE(readReg("PROBE"), "");
        QCOMPARE(setReg(QByteArray(255, 'n'), "longest name"), 0);
        QCOMPARE(readReg(QByteArray(255, 'n')), "longest name");
        QCOMPARE(setReg(QByteArray(256, 'n'), "too long"), 2);
        QCOMPARE(readReg(QByteArray(256, 'n')), "");
        QCOMPARE(UpdateRegistry("Probe", nullptr), 87);
        char buffer[255] = "x";
        QCOMPARE(ReadRegistry(nullptr, buffer), 0);
        QCOMPARE(buffer[0], '\0');

        // a longer value written by hand fills the buffer with its first 255 bytes
        const QByteArray longValue = QByteArray(150, 'a') + QByteArray(150, 'b');
        writeBytes(store.path, "Long=" + longValue + "\n");
        QCOMPARE(readReg("Long"), longValue.left(255));
    }

    // A store as an editor, an installer or a failure leaves it: what "A" reads, and the status of
    // writing it. A refused write or delete leaves the file as it is.
    void stores_data()
    {
        QTest::addColumn<QByteArray>("file"); // null: none
        QTest::addColumn<int>("setup");
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<int>("status");
        const auto row = [](const char* name, const QByteArray& file, const QByteArray& value, int status = 0,
                             Setup setup = AsWritten) { QTest::newRow(name) << file << int(setup) << value << status; };
        row("comments and blank lines", "; A=1\n  # A=2\n\n \t\nA=3\n", "3");
        row("first = splits, blanks count", "A= x=y \nA = 1\n", " x=y ");
        row("CRLF, no final LF", "B=2\r\nA=1\r", "1");
        row("last of duplicates", "A=1\nA=2\n", "2");
        row("escapes and raw Latin-1", "\\x41=\\xe9\\x3D\\\\\xff\n", "\xe9=\\\xff");
        row("corrupt: line without =", "A=1\nB\n", {}, 1);
        row("corrupt: empty name", "=1\nA=1\n", {}, 1);
        row("corrupt: unknown escape", "A=1\nB=\\n\n", {}, 1);
        row("corrupt: backslash in a name", "B\\=1\nA=1\n", {}, 1);
        row("directory at the path", {}, {}, 8, DirectoryAtPath);
        row("read-only file", "A=old\n", "old", 8, ReadOnlyFile);
        row("read-only directory", "A=old\n", "old", 8, ReadOnlyDirectory);
    }
    void stores()
    {
        QFETCH(QByteArray, file);
        QFETCH(int, setup);
        QFETCH(QByteArray, value);
        QFETCH(int, status);
        TempStore store;
        const QString dir = QFileInfo(store.path).path();
        if (!file.isNull())
            writeBytes(store.path, file);
        if (setup == DirectoryAtPath)
            QDir().mkpath(store.path);
        if (setup == ReadOnlyFile)
            QFile::setPermissions(store.path, QFile::ReadOwner | QFile::ReadOther);
        if (setup == ReadOnlyDirectory)
            QFile::setPermissions(dir, QFile::ReadOwner | QFile::ExeOwner);

        QCOMPARE(readReg("A"), value);
        QCOMPARE(setReg("A", "new"), status);
        QCOMPARE(readReg("A"), status == 0 ? QByteArray("new") : value);
        if (status != 0) {
            QCOMPARE(setReg("A", value), status); // refused even when nothing would change
            QCOMPARE(DeleteRegistry("A"), status);
            QCOMPARE(fileBytes(store.path), file);
        }
        QFile::setPermissions(dir, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void edits_data()
    {
        QTest::addColumn<QByteArray>("before"); // null: no store yet
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("value"); // null: delete
        QTest::addColumn<QByteArray>("after"); // null: not written
        const auto row
            = [](const char* tag, const QByteArray& before, const char* name, const QByteArray& value,
                  const QByteArray& after) { QTest::newRow(tag) << before << QByteArray(name) << value << after; };
        const QByteArray text = "; hand comment\r\nA=1\r\n\n# other\nB=2";
        row("in place, CR kept", text, "A", "9 ", "; hand comment\r\nA=9\\x20\r\n\n# other\nB=2");
        row("append after missing LF", text, ";a b=", " =;#\t", text + "\n\\x3Ba\\x20b\\x3D= =;#\\x09\n");
        row("new store and directory, with the header", {}, "A", "1",
            "; Orvanta Monitor settings, kept by qd7gd. One NAME=VALUE per line; \\\\ is a backslash, \\xHH a byte.\n"
            "A=1\n");
        row("unchanged", text, "B", "2", {});
        row("last duplicate replaced", "A=1\nA=2\n", "A", "3", "A=1\nA=3\n");
        row("delete every duplicate", "A=1\nB=2\nA=3", "A", {}, "B=2\n");
        row("delete from no store, then read", {}, "A", {}, {});
    }
    void edits()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, value);
        QFETCH(QByteArray, after);
        TempStore store;
        if (!before.isNull())
            writeBytes(store.path, before);
        QCOMPARE(value.isNull() ? DeleteRegistry(name.constData()) : setReg(name, value), 0);
        QCOMPARE(fileBytes(store.path), after.isNull() ? before : after);
        QCOMPARE(QFile::exists(store.path), !before.isNull() || !after.isNull());
        QCOMPARE(readReg(name), value);
    }

private:
    enum Setup { AsWritten, DirectoryAtPath, ReadOnlyFile, ReadOnlyDirectory };
};

QTEST_APPLESS_MAIN(TestRegistry)
#include "tst_qd7gd_registry.moc"
