#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class QCommandLineParser;

namespace Zavo {

/// What a person wrote behind the program's name.
class CommandLine final
{
    Q_DECLARE_TR_FUNCTIONS(Zavo::CommandLine)

public:
    enum class Wish {
        Edit,
        Screenshot,
        Check,
        Help,
        Version,
        Nothing, ///< The line makes no sense; errorText() says why.
    };

    /// @p arguments begin with the program's name and no longer hold Qt's own options.
    explicit CommandLine(const QStringList &arguments);

    /// Help and version come before everything else on the line.
    Wish wish() const;

    /// The data folder, absolute; empty if none was given.
    QString dataDir() const;

    /// The file that the picture goes to; empty without --screenshot.
    QString screenshotFile() const;

    /// The exit code of a run that could not do what the line asks for. A check has one of its own,
    /// since 1 tells of findings there.
    int exitCodeOfFailure() const { return m_asksForCheck ? 2 : 1; }

    QString helpText() const;
    QString versionText() const;

    /// One sentence; empty if the line makes sense.
    QString errorText() const;

    /// True if the program has nothing to show to a person: it then needs no display. Looks at the
    /// words alone, so that it can be asked before there is an application object.
    static bool isWithoutWindow(const QStringList &arguments);

    /// The language as it was written, "de" or "pt_BR"; empty if none was given. Looks at the words
    /// alone too, since the other texts of the line are in that language.
    static QString languageIn(const QStringList &arguments);

private:
    void read(const QCommandLineParser &parser);

    Wish m_wish = Wish::Edit;
    bool m_asksForCheck = false;
    QString m_dataDir;
    QString m_screenshotFile;
    QString m_helpText;
    QString m_errorText;
};

} // namespace Zavo
