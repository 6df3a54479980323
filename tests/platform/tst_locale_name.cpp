#include "platform/locale_name.h"

#include <QTest>

class TestLocaleName : public QObject
{
    Q_OBJECT

private slots:
    void abbreviations_data();
    void abbreviations();
    void currentLocale_data();
    void currentLocale();
};

void TestLocaleName::abbreviations_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("abbreviation");
    QTest::addColumn<QString>("fallback");

    // clang-format off
    const char* const rows[][3] = {
        {"en_US", "ENU", "ENU"}, {"en_GB", "ENG", "ENU"}, {"en_AU", "ENA", "ENU"}, {"en_CA", "ENC", "ENU"},
        {"en_IE", "ENI", "ENU"}, {"de_DE", "DEU", "DEU"}, {"de_CH", "DES", "DEU"}, {"de_AT", "DEA", "DEU"},
        {"fr_FR", "FRA", "FRA"}, {"fr_CH", "FRS", "FRA"}, {"fr_BE", "FRB", "FRA"}, {"fr_CA", "FRC", "FRA"},
        {"it_IT", "ITA", "ITA"}, {"it_CH", "ITS", "ITA"}, {"es_ES", "ESN", "ESP"}, {"es_MX", "ESM", "ESP"},
        {"pt_BR", "PTB", "PTB"}, {"pt_PT", "PTG", "PTB"}, {"ja_JP", "JPN", "JPN"}, {"ko_KR", "KOR", "KOR"},
        {"zh_CN", "CHS", "CHT"}, {"zh_TW", "CHT", "CHT"}, {"nl_BE", "NLB", "NLD"}, {"nn_NO", "NON", "NOR"},
        {"pl_PL", "PLK", "PLK"}, {"cs_CZ", "CSY", "CSY"}, {"tr_TR", "TRK", "TRK"}, {"el_GR", "ELL", "ELL"},
        {"de_CH.UTF-8", "DES", "DEU"}, {"de_AT.ISO-8859-15@euro", "DEA", "DEU"}, {"fr_BE@euro", "FRB", "FRA"},
        {"EN-gb", "ENG", "ENU"}, {"de", "DEU", "DEU"}, {"en_XX", "", "ENU"}, {"xx_YY", "", ""},
        {"C", "", ""}, {"C.UTF-8", "", ""}, {"POSIX", "", ""}, {"", "", ""}, {"_.@", "", ""},
    };
    // clang-format on
    for (const auto& row : rows)
        QTest::addRow("%s", row[0]) << QString::fromLatin1(row[0]) << QString::fromLatin1(row[1])
                                    << QString::fromLatin1(row[2]);
}

void TestLocaleName::abbreviations()
{
    QFETCH(QString, locale);
    QFETCH(QString, abbreviation);
    QFETCH(QString, fallback);

    QCOMPARE(languageAbbreviation(locale), abbreviation);
    QCOMPARE(defaultSublanguageAbbreviation(locale), fallback);
}

void TestLocaleName::currentLocale_data()
{
    QTest::addColumn<QStringList>("variables"); // LC_ALL, LC_MESSAGES, LANG; "-" unset
    QTest::addColumn<QString>("locale");

    QTest::newRow("LC_ALL first") << QStringList { "de_CH.UTF-8", "fr_FR", "en_US" } << "de_CH";
    QTest::newRow("LC_MESSAGES next") << QStringList { "-", "fr_CA.UTF-8@x", "en_US" } << "fr_CA";
    QTest::newRow("empty passed over") << QStringList { "", "", "it_CH.UTF-8" } << "it_CH";
    QTest::newRow("LANG last") << QStringList { "-", "-", "pt_BR.ISO-8859-1" } << "pt_BR";
    QTest::newRow("none") << QStringList { "-", "-", "-" } << "";
    QTest::newRow("C") << QStringList { "C", "de_DE", "de_DE" } << "C";
}

void TestLocaleName::currentLocale()
{
    QFETCH(QStringList, variables);
    QFETCH(QString, locale);

    const char* const names[] = { "LC_ALL", "LC_MESSAGES", "LANG" };
    for (int i = 0; i < 3; ++i) {
        if (variables[i] == QLatin1String("-"))
            qunsetenv(names[i]);
        else
            qputenv(names[i], variables[i].toLocal8Bit());
    }
    QCOMPARE(currentLocaleName(), locale);
}

QTEST_GUILESS_MAIN(TestLocaleName)
#include "tst_locale_name.moc"
