#include "shell/catalogue.h"
#include "shell/shared_state.h"

#include <QTest>
#include <QTranslator>

class TestCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { ResourceLibrary = nullptr; }

    // library "" is the built-in catalogue; "" as text is the empty text
    void lookups_data()
    {
        QTest::addColumn<QString>("library");
        QTest::addColumn<int>("id");
        QTest::addColumn<QString>("text");
        const QString german = QStringLiteral(QD7_TEST_STRINGS_DIR "/qd7tdcDEU.qm");
        QTest::newRow("mnemonic") << "" << 1004 << "E&xit";
        QTest::newRow("two inner blanks, one trailing") << "" << 1403 << "KQM7002E  Error number = ";
        QTest::newRow("inner double blank") << "" << 1330
                                            << "Use the repository database option to configure the R/3 repository "
                                               "Database Server. Use the Server option to configure R/3  servers for "
                                               "data retrieval.";
        QTest::newRow("nobody asks for it") << "" << 1513 << "Not known";
        QTest::newRow("gap") << "" << 1040 << "";
        QTest::newRow("below the range") << "" << 999 << "";
        QTest::newRow("translated, trailing blank") << german << 1403 << "KQM7002E  Fehlernummer = ";
        QTest::newRow("translated, non-ASCII") << german << 1207 << QString::fromUtf8("L\xc3\xb6schen");
        QTest::newRow("same source, own id") << german << 1102 << "Derzeitige Konfiguration";
        QTest::newRow("library lacks the id") << german << 1200 << "";
        QTest::newRow("left untranslated") << german << 1202 << "";
    }

    void lookups()
    {
        QFETCH(QString, library);
        QFETCH(int, id);
        QFETCH(QString, text);
        QTranslator translator;
        if (!library.isEmpty()) {
            QVERIFY(translator.load(library));
            ResourceLibrary = &translator;
        }
        MsgText = QStringLiteral("before");
        LoadMsgText(id);
        QCOMPARE(MsgText, text);
        QCOMPARE(LastStringLength, text.size());
        LoadMsgTitle(id);
        QCOMPARE(MsgTitle, text);
    }

    void loadOfNoIdLeavesTheBuffer()
    {
        LoadMsgText(1402);
        LoadMsgText(0);
        QCOMPARE(MsgText, QStringLiteral("KQM7001E Error encountered "));
        QCOMPARE(LastStringLength, 0);
    }

    void englishLibraryMatchesTheBuiltInTexts()
    {
        const QList<int> ids = Catalogue::builtInIds();
        QCOMPARE(ids.size(), 262);
        QTranslator english;
        QVERIFY(english.load(QStringLiteral(QD7_ENGLISH_LIBRARY)));
        ResourceLibrary = &english;
        for (int id : ids) {
            QVERIFY2(!Catalogue::builtInText(id).isEmpty(), qPrintable(QString::number(id)));
            QCOMPARE(Catalogue::text(id), Catalogue::builtInText(id));
        }
    }
};

QTEST_GUILESS_MAIN(TestCatalogue)
#include "tst_catalogue.moc"
