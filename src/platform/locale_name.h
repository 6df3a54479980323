#pragma once

#include <QString>

// The user's locale as "language_REGION": the first non-empty of LC_ALL, LC_MESSAGES and LANG,
// without codeset (".UTF-8") and modifier ("@euro").
QString currentLocaleName();

// The three-letter abbreviated language name of a locale ("de_CH" DES), which names the string
// catalogue. A bare language gives that of its default region; unknown, "C" and "POSIX" give "".
QString languageAbbreviation(const QString& localeName);

// The abbreviation of the language's default region ("de_CH" DEU, "fr_CA" FRA), the second try
// when no catalogue of the locale's own exists; "" when the language is unknown.
QString defaultSublanguageAbbreviation(const QString& localeName);
