#include "shell/catalogue.h"
#include "shell/shared_state.h"
#include "shell/string_library.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

// The built-in texts against the English library, and the search for a string library.
class TestCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qunsetenv("LC_ALL");
        qunsetenv("LC_MESSAGES");
    }

    void cleanup()
    {
        delete ResourceLibrary;
        ResourceLibrary = nullptr;
        StringLibrary::setSearchDirectories({});
    }

    // Every id the console asks for has a text, and the English library says the same.
    void englishLibraryMatchesTheBuiltInTexts()
    {
        const QList<int> ids = Catalogue::builtInIds();
        ResourceLibrary = new QTranslator;
        QVERIFY(ResourceLibrary->load(QStringLiteral(QD7_ENGLISH_LIBRARY)));
        for (int id : ids) {
            QVERIFY2(!Catalogue::builtInText(id).isEmpty(), qPrintable(QString::number(id)));
            QCOMPARE(Catalogue::text(id), Catalogue::builtInText(id));
        }
    }

    // A file is "directory:abbreviation", directory 0 searched before 1; ":bad" marks a damaged one.
    void searchOrder_data()
    {
        QTest::addColumn<QByteArray>("lang");
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("found");
        QTest::newRow("own language first") << QByteArray("de_CH.UTF-8") << QStringList { "0:DEU", "1:DES" } << "1:DES";
        QTest::newRow("English last") << QByteArray("de_CH") << QStringList { "0:FRA", "1:ENU" } << "1:ENU";
        QTest::newRow("first directory first") << QByteArray("de_DE") << QStringList { "1:DEU", "0:DEU" } << "0:DEU";
        QTest::newRow("damaged counts as missing")
            << QByteArray("de_CH") << QStringList { "0:DES:bad", "0:DEU" } << "0:DEU";
        QTest::newRow("none") << QByteArray("de_CH") << QStringList { "0:FRA", "1:DEA" } << "";
    }

    void searchOrder()
    {
        QFETCH(QByteArray, lang);
        QFETCH(QStringList, files);
        QFETCH(QString, found);
        QTemporaryDir root;
        for (const QString& file : files) {
            const QStringList part = file.split(QLatin1Char(':'));
            QVERIFY(QDir(root.path()).mkpath(part.at(0)));
            QFile library(root.filePath(part.at(0) + QLatin1Char('/') + StringLibrary::fileName(part.at(1))));
            QFile german(QStringLiteral(QD7_TEST_STRINGS_DIR "/qd7tdcDEU.qm"));
            QVERIFY(library.open(QIODevice::WriteOnly) && german.open(QIODevice::ReadOnly));
            library.write(part.size() > 2 ? QByteArray("not a catalogue") : german.readAll());
        }
        StringLibrary::setSearchDirectories({ root.filePath(QStringLiteral("0")), root.filePath(QStringLiteral("1")) });
        qputenv("LANG", lang);
        StringLibrary::search();
        const QFileInfo taken(ResourceLibrary ? ResourceLibrary->filePath() : QString());
        QCOMPARE(
            ResourceLibrary ? taken.dir().dirName() + QLatin1Char(':') + taken.completeBaseName().mid(6) : QString(),
            found);
    }
};

QTEST_GUILESS_MAIN(TestCatalogue)
#include "tst_catalogue.moc"
