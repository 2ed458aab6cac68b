#include "Catalogues.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <memory>

namespace Zavo {

Catalogues::Catalogues(const QStringList &folders, QObject *parent)
    : QObject(parent)
    , m_folders(folders)
{
}

QStringList Catalogues::standardFolders()
{
    const QDir program(QCoreApplication::applicationDirPath());
    return {program.filePath(QStringLiteral("translations")),
            QDir::cleanPath(
                program.filePath(QStringLiteral("../share/zavo-schedule-editor/translations")))};
}

bool Catalogues::load(const QString &language)
{
    const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
    if (!language.isEmpty()) {
        // An unknown name gives the C locale.
        if (locale.language() == QLocale::C)
            return false;
        QLocale::setDefault(locale);
    }
    loadFor(locale);
    return true;
}

void Catalogues::loadFor(const QLocale &locale)
{
    loadCatalogue(locale, QStringLiteral("qtbase"),
                  QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    std::any_of(m_folders.cbegin(), m_folders.cend(), [&](const QString &folder) {
        return loadCatalogue(locale, QStringLiteral("zavo"), folder);
    });
}

bool Catalogues::loadCatalogue(const QLocale &locale, const QString &name, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>(this);
    if (!translator->load(locale, name, QStringLiteral("_"), folder))
        return false;
    return QCoreApplication::installTranslator(translator.release());
}

} // namespace Zavo
