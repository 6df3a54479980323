// The store through the C interface: bytes kept, limits, the file by hand and as written, bad stores.
#include "registry_util.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

class TestRegistry : public QObject
{
    Q_OBJECT

private slots:
    void keepsEveryByte()
    {
        TempStore store;
        QByteArray high;
        for (int b = 0x80; b <= 0xFF; ++b)
            high.append(char(b));
        for (const QByteArray& value : { QByteArray(" 08:00 17:30 "), QByteArray("a;b=c \"q\" #x [s] \\ %1"), high,
                 QByteArray("a\tb\rc\nd\x01\x7f"), QByteArray(255, 'w') }) {
            QCOMPARE(setReg("Value", value), 0);
            QCOMPARE(readReg("Value"), value);
            // plain ASCII, one line a value: nothing an editor or another reader could misread
            for (const char c : fileBytes(store.path))
                QVERIFY2(c == '\n' || (c >= 0x20 && c < 0x7F), qPrintable(QString::number(uchar(c), 16)));
        }
    }

    void namesAndLimits()
    {
        TempStore store;
        QCOMPARE(setReg("Probe", "upper"), 0);
        QCOMPARE(setReg("probe", "lower"), 0);
        QCOMPARE(readReg("Probe"), "upper");
        QCOMPARE(readReg("probe"), "lower");
        QCOMPARE(setReg(QByteArray(255, 'n'), "longest name"), 0);
        QCOMPARE(setReg(QByteArray(256, 'n'), "too long"), 2);
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
    // writing it. A refused write or delete leaves the file alone.
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
        row("corrupt: unknown escape", "A=1\nB=\\n\n", {}, 1);
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

    // Before and after as bytes; a null value deletes.
    void edits()
    {
        const QByteArray text = "; hand comment\r\nA=1\r\n\n# other\nB=2";
        const QByteArray edits[][4] = {
            { text, "A", "9 ", "; hand comment\r\nA=9\\x20\r\n\n# other\nB=2" }, // in place, CR kept
            { text, ";a b=", " =;#\t", text + "\n\\x3Ba\\x20b\\x3D= =;#\\x09\n" }, // after a missing LF
            { "A=1\nA=2\n", "A", "3", "A=1\nA=3\n" }, // the last duplicate
            { "A=1\nB=2\nA=3", "A", {}, "B=2\n" }, // every duplicate deleted
        };
        for (const auto& [before, name, value, after] : edits) {
            TempStore store;
            writeBytes(store.path, before);
            QCOMPARE(value.isNull() ? DeleteRegistry(name.constData()) : setReg(name, value), 0);
            QCOMPARE(fileBytes(store.path), after);
            QCOMPARE(readReg(name), value);
        }
    }

    // The lock is held elsewhere (a flock of its own conflicts even within this process).
    // Another writer rewrites the file with one of the same size and modification time (one
    // timestamp tick, forced here): a cache keyed on size and time would read the old value or
    // write it back.
    void sameSizeRewritesInOneTick()
    {
        TempStore store;
        QCOMPARE(setReg("Seq", "v1000"), 0);
        const QByteArray path = QFile::encodeName(store.path);
        struct stat first;
        QCOMPARE(::stat(path.constData(), &first), 0);
        const struct timespec times[2] = { first.st_atim, first.st_mtim };
        for (int i = 1001; i <= 1020; ++i) {
            const QByteArray value = "v" + QByteArray::number(i);
            writeBytes(store.path, "Seq=" + value + "\nMine=x\n");
            QCOMPARE(::utimensat(AT_FDCWD, path.constData(), times, 0), 0);
            QCOMPARE(readReg("Seq"), value);
            QCOMPARE(setReg("Mine", "y"), 0);
            QCOMPARE(fileBytes(store.path), "Seq=" + value + "\nMine=y\n");
        }
    }

    void lockNotObtained()
    {
        TempStore store;
        QCOMPARE(setReg("A", "1"), 0);
        const int held = ::open(QFile::encodeName(store.path + ".lock").constData(), O_RDWR | O_CLOEXEC);
        QVERIFY(held >= 0 && ::flock(held, LOCK_EX | LOCK_NB) == 0);
        QCOMPARE(setReg("A", "2"), 5);
        QCOMPARE(setReg("A", "1"), 0); // unchanged: no lock needed
        ::close(held);
        QCOMPARE(setReg("A", "2"), 0);
        QCOMPARE(readReg("A"), "2");
    }

private:
    enum Setup { AsWritten, ReadOnlyFile, ReadOnlyDirectory };
};

QTEST_APPLESS_MAIN(TestRegistry)
#include "tst_qd7gd_registry.moc"
