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
        {"en_US", "ENU", "ENU"}, {"de_CH", "DES", "DEU"}, {"de_CH.UTF-8", "DES", "DEU"},
        {"de_AT.ISO-8859-15@euro", "DEA", "DEU"}, {"EN-gb", "ENG", "ENU"}, {"de", "DEU", "DEU"},
        // The classic fallbacks, not the obvious ones.
        {"es_MX", "ESM", "ESP"}, {"zh_CN", "CHS", "CHT"}, {"pt_PT", "PTG", "PTB"}, {"nn_NO", "NON", "NOR"},
        {"en_XX", "", "ENU"}, {"xx_YY", "", ""}, {"C", "", ""}, {"POSIX", "", ""}, {"", "", ""},
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
    QTest::addColumn<QStringList>("variables"); // LC_ALL, LC_MESSAGES, LANG
    QTest::addColumn<QString>("locale");

    QTest::newRow("LC_ALL first") << QStringList { "de_CH.UTF-8", "fr_FR", "en_US" } << "de_CH";
    QTest::newRow("LC_MESSAGES next") << QStringList { "", "fr_CA.UTF-8@x", "en_US" } << "fr_CA";
    QTest::newRow("LANG last") << QStringList { "", "", "it_CH@euro" } << "it_CH";
    QTest::newRow("none") << QStringList { "", "", "" } << "";
}

void TestLocaleName::currentLocale()
{
    QFETCH(QStringList, variables);
    QFETCH(QString, locale);

    const char* const names[] = { "LC_ALL", "LC_MESSAGES", "LANG" };
    for (int i = 0; i < 3; ++i)
        qputenv(names[i], variables[i].toLocal8Bit()); // empty counts as unset
    QCOMPARE(currentLocaleName(), locale);
}

QTEST_GUILESS_MAIN(TestLocaleName)
#include "tst_locale_name.moc"
