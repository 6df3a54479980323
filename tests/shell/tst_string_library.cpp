#include "shell/shared_state.h"
#include "shell/string_library.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

class TestStringLibrary : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        delete ResourceLibrary;
        ResourceLibrary = nullptr;
        StringLibrary::setSearchDirectories({});
    }

    // A file is "directory:abbreviation", directory 0 searched before 1; ":bad" marks a damaged one.
    void searchOrder_data()
    {
        QTest::addColumn<QByteArray>("lang");
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("found");
        QTest::newRow("own language first") << QByteArray("de_CH.UTF-8") << QStringList { "0:DEU", "1:DES" } << "1:DES";
        QTest::newRow("default sublanguage next") << QByteArray("de_CH") << QStringList { "0:ENU", "1:DEU" } << "1:DEU";
        QTest::newRow("English last") << QByteArray("de_CH") << QStringList { "0:FRA", "1:ENU" } << "1:ENU";
        QTest::newRow("first directory first") << QByteArray("de_DE") << QStringList { "1:DEU", "0:DEU" } << "0:DEU";
        QTest::newRow("damaged counts as missing")
            << QByteArray("de_CH") << QStringList { "0:DES:bad", "0:DEU" } << "0:DEU";
        QTest::newRow("C locale") << QByteArray("C") << QStringList { "0:ENU" } << "0:ENU";
        QTest::newRow("none") << QByteArray("de_CH") << QStringList { "0:FRA", "1:DEA" } << "";
    }

    void searchOrder()
    {
        QFETCH(QByteArray, lang);
        QFETCH(QStringList, files);
        QFETCH(QString, found);
        QTemporaryDir root;
        const QStringList directories { root.filePath(QStringLiteral("0")), root.filePath(QStringLiteral("1")) };
        for (const QString& directory : directories)
            QVERIFY(QDir().mkpath(directory));
        for (const QString& file : files) {
            const QStringList part = file.split(QLatin1Char(':'));
            QFile library(QDir(directories.at(part.at(0).toInt())).filePath(StringLibrary::fileName(part.at(1))));
            QFile german(QStringLiteral(QD7_TEST_STRINGS_DIR "/qd7tdcDEU.qm"));
            QVERIFY(library.open(QIODevice::WriteOnly) && german.open(QIODevice::ReadOnly));
            library.write(part.size() > 2 ? QByteArray("not a catalogue") : german.readAll());
        }
        StringLibrary::setSearchDirectories(directories);
        qunsetenv("LC_ALL");
        qunsetenv("LC_MESSAGES");
        qputenv("LANG", lang);
        StringLibrary::search();
        QString taken;
        if (ResourceLibrary) {
            const QFileInfo file(ResourceLibrary->filePath());
            taken = QString::number(directories.indexOf(file.absolutePath())) + QLatin1Char(':')
                + file.completeBaseName().mid(6);
        }
        QCOMPARE(taken, found);
        // once found, kept
        QTranslator* library = ResourceLibrary;
        StringLibrary::setSearchDirectories({ QStringLiteral(QD7_TEST_STRINGS_DIR) });
        StringLibrary::search();
        if (library)
            QCOMPARE(ResourceLibrary, library);
    }
};

QTEST_GUILESS_MAIN(TestStringLibrary)
#include "tst_string_library.moc"
