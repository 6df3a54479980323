#include "repository/path_search.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

// "b" holds the program; "a" is empty; "dir" holds a directory of the program's name; "shut" can't be
// searched; "long" stands for a name the system refuses.
class TestPathSearch : public QObject
{
    Q_OBJECT

private slots:
    void search_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("found");
        QTest::newRow("only in the last directory") << "a:b" << false;
        QTest::newRow("the last directory closed by ':'") << "a:b:" << true;
        QTest::newRow("empty item ends the search") << "a::b:" << false;
        QTest::newRow("empty PATH") << "" << false;
        QTest::newRow("a directory of that name is no file") << "dir:" << false;
        QTest::newRow("unsearchable directory passed over") << "shut:b:" << true;
        QTest::newRow("name too long passed over") << "long:b:" << true;
    }
    void search()
    {
        QFETCH(QString, path);
        QFETCH(bool, found);
        QTemporaryDir dir;
        for (const char* name : { "a", "b", "dir/nvscmd.exe", "shut" })
            QVERIFY(QDir(dir.path()).mkpath(QString::fromLatin1(name)));
        QVERIFY(QFile(dir.filePath(QStringLiteral("b/nvscmd.exe"))).open(QIODevice::WriteOnly));
        QVERIFY(QFile::setPermissions(dir.filePath(QStringLiteral("shut")), {}));
        QStringList items = path.split(QLatin1Char(':'));
        for (QString& item : items) {
            if (!item.isEmpty())
                item = item == QLatin1String("long") ? QString(5000, QLatin1Char('x')) : dir.filePath(item);
        }
        const QByteArray saved = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(items.join(QLatin1Char(':'))));
        const bool result = FindOnPath(QStringLiteral("nvscmd.exe"));
        qputenv("PATH", saved);
        QCOMPARE(result, found);
    }
};

QTEST_GUILESS_MAIN(TestPathSearch)
#include "tst_path_search.moc"
