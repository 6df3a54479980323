#include "locale_name.h"

#include "environment.h"

namespace {

struct Abbreviation
{
    const char* locale;
    const char* name;
};

// The classic platform's abbreviated names, one locale each.
// clang-format off
constexpr Abbreviation Abbreviations[] = {
    {"ar_SA", "ARA"}, {"bg_BG", "BGR"}, {"ca_ES", "CAT"}, {"cs_CZ", "CSY"}, {"da_DK", "DAN"}, {"de_AT", "DEA"},
    {"de_CH", "DES"}, {"de_DE", "DEU"}, {"de_LI", "DEC"}, {"de_LU", "DEL"}, {"el_GR", "ELL"}, {"en_AU", "ENA"},
    {"en_BZ", "ENL"}, {"en_CA", "ENC"}, {"en_GB", "ENG"}, {"en_IE", "ENI"}, {"en_JM", "ENJ"}, {"en_NZ", "ENZ"},
    {"en_PH", "ENP"}, {"en_TT", "ENT"}, {"en_US", "ENU"}, {"en_ZA", "ENS"}, {"en_ZW", "ENW"}, {"es_AR", "ESS"},
    {"es_CL", "ESL"}, {"es_CO", "ESO"}, {"es_ES", "ESN"}, {"es_MX", "ESM"}, {"es_PE", "ESR"}, {"es_VE", "ESV"},
    {"et_EE", "ETI"}, {"eu_ES", "EUQ"}, {"fi_FI", "FIN"}, {"fr_BE", "FRB"}, {"fr_CA", "FRC"}, {"fr_CH", "FRS"},
    {"fr_FR", "FRA"}, {"fr_LU", "FRL"}, {"fr_MC", "FRM"}, {"he_IL", "HEB"}, {"hr_HR", "HRV"}, {"hu_HU", "HUN"},
    {"id_ID", "IND"}, {"is_IS", "ISL"}, {"it_CH", "ITS"}, {"it_IT", "ITA"}, {"ja_JP", "JPN"}, {"ko_KR", "KOR"},
    {"lt_LT", "LTH"}, {"lv_LV", "LVI"}, {"nb_NO", "NOR"}, {"nl_BE", "NLB"}, {"nl_NL", "NLD"}, {"nn_NO", "NON"},
    {"pl_PL", "PLK"}, {"pt_BR", "PTB"}, {"pt_PT", "PTG"}, {"ro_RO", "ROM"}, {"ru_RU", "RUS"}, {"sk_SK", "SKY"},
    {"sl_SI", "SLV"}, {"sv_FI", "SVF"}, {"sv_SE", "SVE"}, {"th_TH", "THA"}, {"tr_TR", "TRK"}, {"uk_UA", "UKR"},
    {"vi_VN", "VIT"}, {"zh_CN", "CHS"}, {"zh_HK", "ZHH"}, {"zh_MO", "ZHM"}, {"zh_SG", "ZHI"}, {"zh_TW", "CHT"},
};
// clang-format on

// The locale of each language's default sublanguage. It is the classic one, not always the
// obvious one: Spanish falls back to the traditional sort (ESP), Chinese to Taiwan (CHT),
// Portuguese to Brazil, and both Norwegian written forms to NOR.
// clang-format off
constexpr Abbreviation DefaultRegions[] = {
    {"ar", "ARA"}, {"bg", "BGR"}, {"ca", "CAT"}, {"cs", "CSY"}, {"da", "DAN"}, {"de", "DEU"}, {"el", "ELL"},
    {"en", "ENU"}, {"es", "ESP"}, {"et", "ETI"}, {"eu", "EUQ"}, {"fi", "FIN"}, {"fr", "FRA"}, {"he", "HEB"},
    {"hr", "HRV"}, {"hu", "HUN"}, {"id", "IND"}, {"is", "ISL"}, {"it", "ITA"}, {"ja", "JPN"}, {"ko", "KOR"},
    {"lt", "LTH"}, {"lv", "LVI"}, {"nb", "NOR"}, {"nl", "NLD"}, {"nn", "NOR"}, {"no", "NOR"}, {"pl", "PLK"},
    {"pt", "PTB"}, {"ro", "ROM"}, {"ru", "RUS"}, {"sk", "SKY"}, {"sl", "SLV"}, {"sv", "SVE"}, {"th", "THA"},
    {"tr", "TRK"}, {"uk", "UKR"}, {"vi", "VIT"}, {"zh", "CHT"},
};
// clang-format on

QString lookUp(const auto& table, const QString& key)
{
    for (const Abbreviation& entry : table) {
        if (key == QLatin1String(entry.locale))
            return QLatin1String(entry.name);
    }
    return {};
}

QString withoutCodesetAndModifier(const QString& name)
{
    return name.section(QLatin1Char('@'), 0, 0).section(QLatin1Char('.'), 0, 0);
}

// "de-ch.utf8@euro" -> "de_CH", "DE" -> "de".
QString normalized(const QString& localeName)
{
    QString name = withoutCodesetAndModifier(localeName);
    name.replace(QLatin1Char('-'), QLatin1Char('_'));
    const qsizetype separator = name.indexOf(QLatin1Char('_'));
    if (separator < 0)
        return name.toLower();
    return name.left(separator).toLower() + QLatin1Char('_') + name.mid(separator + 1).toUpper();
}

QString languageOf(const QString& normalizedName)
{
    return normalizedName.section(QLatin1Char('_'), 0, 0);
}

} // namespace

QString currentLocaleName()
{
    for (const char* variable : { "LC_ALL", "LC_MESSAGES", "LANG" }) {
        const QString value = environmentValue(QLatin1String(variable));
        if (!value.isEmpty())
            return withoutCodesetAndModifier(value);
    }
    return {};
}

QString languageAbbreviation(const QString& localeName)
{
    const QString name = normalized(localeName);
    if (!name.contains(QLatin1Char('_')))
        return lookUp(DefaultRegions, name);
    return lookUp(Abbreviations, name);
}

QString defaultSublanguageAbbreviation(const QString& localeName)
{
    return lookUp(DefaultRegions, languageOf(normalized(localeName)));
}
