#pragma once

#include <QString>
#include <QStringList>

class QTranslator;

// The string libraries: one Qt translation catalogue per language, qd7tdc<ABBR>.qm, with the ids of
// the built-in catalogue. Looked for beside the executable, then in the installed data directory.
namespace StringLibrary {

// "qd7tdcDEU.qm" for "DEU".
QString fileName(const QString& abbreviation);

// Where libraries are looked for, in this order.
QStringList searchDirectories();
// Tests put their own directories in place of the usual ones; an empty list restores those.
void setSearchDirectories(const QStringList& directories);

// The library of one abbreviation from the first directory that holds a loadable one, or null.
// The caller owns it.
QTranslator* load(const QString& abbreviation);

// The language search of the user's locale, while ResourceLibrary is null: the locale's own
// abbreviation, then its language's default sublanguage, then "ENU". The library found becomes
// ResourceLibrary and stays for the life of the process; when none is found, ResourceLibrary stays
// null and the next call searches again. Silent either way.
void search();

} // namespace StringLibrary
