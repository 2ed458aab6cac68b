#include "LanguageChoice.h"

#include "CommandLine.h"
#include "HostNames.h"
#include "ZvEditorUserConfig.h"

#include <QLocale>

#include <clocale>

namespace Zavo::LanguageChoice {

namespace {

constexpr char everyCategory[] = "LC_ALL";
constexpr char dateCategory[] = "LC_TIME";

QByteArray environmentFor(const char *category)
{
    for (const char *variable : {everyCategory, category, "LANG"}) {
        const QByteArray value = qgetenv(variable);
        if (!value.isEmpty())
            return value;
    }
    return {};
}

/// The one variable that goes before all others would hide what is set for dates.
void divideEverything()
{
    const QByteArray all = qgetenv(everyCategory);
    if (all.isEmpty())
        return;
    for (const char *category :
         {"LC_CTYPE", "LC_COLLATE", "LC_MESSAGES", "LC_MONETARY", "LC_NUMERIC", "LC_MEASUREMENT"})
        qputenv(category, all);
    qunsetenv(everyCategory);
}

} // namespace

QString stored()
{
    const QString language =
        ZvEditorUserConfig::value(QLatin1String(HostNames::languageKey)).toString();
    return QLocale(language).language() == QLocale::C ? QString() : language;
}

void store(const QString &language)
{
    ZvEditorUserConfig::setValue(QLatin1String(HostNames::languageKey), language);
    ZvEditorUserConfig::sync();
}

QString of(const QStringList &arguments)
{
    const QString language = CommandLine::languageIn(arguments);
    return language.isEmpty() ? stored() : language;
}

QString nameOf(const QString &language)
{
    if (language == QLatin1String("en"))
        return QStringLiteral("English");
    QString name = QLocale(language).nativeLanguageName();
    if (name.isEmpty())
        return language;
    name[0] = name.at(0).toUpper();
    return name;
}

void applyToDates(const QString &language)
{
    const QLocale wanted(language);
    const QLocale present(QString::fromLatin1(environmentFor(dateCategory)));
    if (wanted.language() == QLocale::C || wanted.language() == present.language())
        return;
    // A locale that is not installed must not take away the one that file names go by.
    std::setlocale(LC_ALL, "");
    divideEverything();
    qputenv(dateCategory, wanted.name().toLatin1() + ".UTF-8");
}

} // namespace Zavo::LanguageChoice
