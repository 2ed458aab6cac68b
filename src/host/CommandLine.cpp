#include "CommandLine.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QDir>

#include <algorithm>

namespace Zavo {

namespace {

constexpr char dataDirOption[] = "data-dir";
constexpr char languageOption[] = "language";
constexpr char screenshotOption[] = "screenshot";
constexpr char checkOption[] = "check";
constexpr char helpOption[] = "help";
constexpr char versionOption[] = "version";

QString name(const char *option)
{
    return QString::fromLatin1(option);
}

} // namespace

CommandLine::CommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Edits the daily programme of display channels."));
    parser.addOptions({
        {name(dataDirOption), tr("Opens this data folder."), tr("folder")},
        {name(languageOption), tr("Speaks this language, for example de or ja."), tr("language")},
        {name(screenshotOption), tr("Writes a picture of the window to this PNG file and ends."),
         tr("file")},
        {name(checkOption),
         tr("Checks the channels and their stages instead of opening them. Ends with 0 if nothing "
            "was found, 1 with findings, 2 if it could not check.")},
        {{QStringLiteral("h"), name(helpOption)}, tr("Shows these options and ends.")},
        {{QStringLiteral("v"), name(versionOption)}, tr("Shows the version and ends.")},
    });
    const bool understood = parser.parse(arguments);
    m_helpText = parser.helpText();
    m_asksForCheck = parser.isSet(name(checkOption));
    if (parser.isSet(name(helpOption))) {
        m_wish = Wish::Help;
    } else if (parser.isSet(name(versionOption))) {
        m_wish = Wish::Version;
    } else if (!understood) {
        m_wish = Wish::Nothing;
        m_errorText = parser.errorText();
    } else {
        read(parser);
    }
}

CommandLine::Wish CommandLine::wish() const
{
    return m_wish;
}

QString CommandLine::dataDir() const
{
    return m_dataDir;
}

QString CommandLine::screenshotFile() const
{
    return m_screenshotFile;
}

QString CommandLine::helpText() const
{
    return m_helpText;
}

QString CommandLine::versionText() const
{
    return QStringLiteral("%1 %2").arg(QCoreApplication::applicationName(),
                                       QCoreApplication::applicationVersion());
}

QString CommandLine::errorText() const
{
    return m_errorText;
}

bool CommandLine::isWithoutWindow(const QStringList &arguments)
{
    const QStringList words{QStringLiteral("-h"), QStringLiteral("-v")};
    const QStringList options{name(screenshotOption), name(checkOption), name(helpOption),
                              name(versionOption)};
    return std::any_of(arguments.cbegin(), arguments.cend(), [&](const QString &argument) {
        const QString option = argument.section(QLatin1Char('='), 0, 0);
        const bool isLong =
            option.startsWith(QLatin1String("--")) && options.contains(option.mid(2));
        return isLong || words.contains(argument);
    });
}

QString CommandLine::languageIn(const QStringList &arguments)
{
    const QString option = QLatin1String("--") + name(languageOption);
    QString language;
    for (int index = 0; index < arguments.size(); ++index) {
        const QString &argument = arguments.at(index);
        if (argument == option)
            language = arguments.value(++index);
        else if (argument.startsWith(option + QLatin1Char('=')))
            language = argument.mid(option.size() + 1);
    }
    return language;
}

void CommandLine::read(const QCommandLineParser &parser)
{
    for (const char *option : {dataDirOption, languageOption, screenshotOption}) {
        if (parser.isSet(name(option)) && parser.value(name(option)).isEmpty())
            m_errorText = tr("The option --%1 needs a value.").arg(name(option));
    }
    if (!parser.positionalArguments().isEmpty())
        m_errorText = tr("\"%1\" is no option.").arg(parser.positionalArguments().constFirst());
    if (m_asksForCheck && parser.isSet(name(screenshotOption)))
        m_errorText = tr("The options --%1 and --%2 exclude each other.")
                          .arg(name(checkOption), name(screenshotOption));
    if (!m_errorText.isEmpty()) {
        m_wish = Wish::Nothing;
        return;
    }
    if (parser.isSet(name(dataDirOption)))
        m_dataDir =
            QDir::cleanPath(QDir::current().absoluteFilePath(parser.value(name(dataDirOption))));
    m_screenshotFile = parser.value(name(screenshotOption));
    if (!m_screenshotFile.isEmpty())
        m_wish = Wish::Screenshot;
    else if (m_asksForCheck)
        m_wish = Wish::Check;
}

} // namespace Zavo
