#include "string_library.h"

#include "platform/locale_name.h"
#include "shared_state.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTranslator>

#include <memory>

namespace StringLibrary {
namespace {

QStringList& replacedDirectories()
{
    static QStringList directories;
    return directories;
}

} // namespace

QString fileName(const QString& abbreviation)
{
    return QStringLiteral("qd7tdc") + abbreviation + QStringLiteral(".qm");
}

QStringList searchDirectories()
{
    if (!replacedDirectories().isEmpty())
        return replacedDirectories();
    return { QCoreApplication::applicationDirPath(), QStringLiteral(QD7_TRANSLATIONS_DIR) };
}

void setSearchDirectories(const QStringList& directories)
{
    replacedDirectories() = directories;
}

QTranslator* load(const QString& abbreviation)
{
    if (abbreviation.isEmpty())
        return nullptr;
    for (const QString& directory : searchDirectories()) {
        const QString path = QDir(directory).filePath(fileName(abbreviation));
        if (!QFileInfo(path).isFile())
            continue;
        // a damaged file counts as missing, so the search goes on
        auto library = std::make_unique<QTranslator>();
        if (library->load(path))
            return library.release();
    }
    return nullptr;
}

void search()
{
    if (ResourceLibrary)
        return;
    const QString locale = currentLocaleName();
    ResourceLibrary = load(languageAbbreviation(locale));
    if (!ResourceLibrary)
        ResourceLibrary = load(defaultSublanguageAbbreviation(locale).left(3));
    if (!ResourceLibrary)
        ResourceLibrary = load(QStringLiteral("ENU"));
}

} // namespace StringLibrary
