#include "Catalogues.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <memory>

namespace Zavo {

namespace {
constexpr char catalogueName[] = "zavo-schedule-editor";
constexpr char catalogueSuffix[] = ".qm";
} // namespace

Catalogues::Catalogues(const QStringList &folders, QObject *parent)
    : QObject(parent)
    , m_folders(folders)
{
}

QStringList Catalogues::standardFolders()
{
    const QDir program(QCoreApplication::applicationDirPath());
    return {program.filePath(QStringLiteral("translations")),
            QDir::cleanPath(program.filePath(QStringLiteral(ZAVO_TRANSLATIONS_FROM_PROGRAM)))};
}

QStringList Catalogues::languages(const QStringList &folders)
{
    const QString prefix = QLatin1String(catalogueName) + QLatin1Char('_');
    const QString suffix = QLatin1String(catalogueSuffix);
    QStringList languages;
    for (const QString &folder : folders) {
        const QStringList files = QDir(folder).entryList({prefix + QLatin1Char('*') + suffix});
        for (const QString &file : files)
            languages.append(file.mid(prefix.size()).chopped(suffix.size()));
    }
    languages.removeDuplicates();
    languages.sort();
    return languages;
}

bool Catalogues::load(const QString &language)
{
    const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
    if (!language.isEmpty()) {
        // An unknown name gives the C locale.
        if (locale.language() == QLocale::C)
            return false;
        // The system's own may stand for another country of that language.
        if (locale.language() != QLocale::system().language())
            QLocale::setDefault(locale);
    }
    loadFor(locale);
    return true;
}

void Catalogues::loadFor(const QLocale &locale)
{
    for (const QString &folder : qAsConst(m_folders)) {
        const QString language = loadCatalogue(locale, QLatin1String(catalogueName), folder);
        if (language.isEmpty())
            continue;
        loadCatalogue(QLocale(language), QStringLiteral("qtbase"),
                      QLibraryInfo::location(QLibraryInfo::TranslationsPath));
        return;
    }
}

QString Catalogues::loadCatalogue(const QLocale &locale, const QString &name, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>(this);
    if (!translator->load(locale, name, QStringLiteral("_"), folder,
                          QLatin1String(catalogueSuffix)))
        return {};
    const QString language = translator->language();
    QCoreApplication::installTranslator(translator.release());
    return language;
}

} // namespace Zavo
