#include "upload/UploadTarget.h"

#include <QDir>
#include <QRegularExpression>

#include <algorithm>

namespace Zavo {

namespace {
constexpr int largestPort = 65535;
constexpr int longestAddress = 2000;
constexpr char daemonScheme[] = "rsync://";
constexpr char shellScheme[] = "ssh://";

// A name never begins with a dash, so that no program takes it for an option.
constexpr char userAndHost[] = "(?:([A-Za-z0-9_][A-Za-z0-9._-]*)@)?"
                               "([A-Za-z0-9](?:[A-Za-z0-9._-]*[A-Za-z0-9])?|\\[[0-9A-Fa-f:.]+\\])";

QRegularExpression expression(const QString &rest)
{
    return QRegularExpression(QStringLiteral("\\A%1%2\\z").arg(QLatin1String(userAndHost), rest),
                              QRegularExpression::DotMatchesEverythingOption);
}

bool hasControlCharacter(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) {
        return c.category() == QChar::Other_Control || c.unicode() == QChar::LineSeparator ||
               c.unicode() == QChar::ParagraphSeparator;
    });
}

bool leavesItself(const QString &path)
{
    return path.split(QLatin1Char('/')).contains(QLatin1String(".."));
}

QString withSeparator(const QString &path)
{
    return path.endsWith(QLatin1Char('/')) ? path : path + QLatin1Char('/');
}

QString authority(const QRegularExpressionMatch &match)
{
    const QString user = match.captured(1);
    return user.isEmpty() ? match.captured(2) : user + QLatin1Char('@') + match.captured(2);
}
} // namespace

UploadTarget::UploadTarget(const QString &address)
    : m_address(address.trimmed())
{
    if (m_address.isEmpty())
        m_problem = tr("The address is empty.");
    else if (m_address.size() > longestAddress)
        m_problem = tr("The address is too long.");
    else if (hasControlCharacter(m_address))
        m_problem = tr("An address is a single line without control characters.");
    else if (m_address.startsWith(QLatin1Char('/')))
        readFolder();
    else if (m_address.startsWith(QLatin1String(daemonScheme)))
        readDaemon();
    else
        readShell();
}

QString UploadTarget::destination(const QString &folder) const
{
    return folder.isEmpty() ? m_base : withSeparator(m_base + folder);
}

QStringList UploadTarget::options() const
{
    switch (m_kind) {
    case Kind::None:
        break;
    case Kind::Folder:
        // The far side may know no such option.
        return {QStringLiteral("--fsync")};
    case Kind::Daemon: {
        QStringList options{QStringLiteral("--contimeout=20"), QStringLiteral("--timeout=120")};
        if (m_port)
            options.append(QStringLiteral("--port=%1").arg(m_port));
        return options;
    }
    case Kind::Shell: {
        // Nobody sits at its terminal to answer a question.
        QString shell = QStringLiteral("ssh -o BatchMode=yes -o ConnectTimeout=20"
                                       " -o ServerAliveInterval=15");
        if (m_port)
            shell += QStringLiteral(" -p %1").arg(m_port);
        return {QStringLiteral("--timeout=120"), QStringLiteral("--rsh=") + shell};
    }
    }
    return {};
}

bool UploadTarget::overlaps(const QString &folder) const
{
    if (m_kind != Kind::Folder)
        return false;
    const QString other = withSeparator(QDir::cleanPath(folder));
    return m_base.startsWith(other) || other.startsWith(m_base);
}

void UploadTarget::readFolder()
{
    const QString path = QDir::cleanPath(m_address);
    if (leavesItself(m_address)) {
        m_problem = tr("The path of a folder must not contain \"..\".");
    } else if (path == QLatin1String("/")) {
        m_problem = tr("The root folder is no target.");
    } else {
        m_base = withSeparator(path);
        m_kind = Kind::Folder;
    }
}

void UploadTarget::readDaemon()
{
    static const QRegularExpression known = expression(QStringLiteral("(?::([0-9]{1,5}))?/(.*)"));
    const auto match = known.match(m_address.mid(static_cast<int>(qstrlen(daemonScheme))));
    const QString path = match.captured(4);
    const int port = match.captured(3).toInt();
    const bool portIsValid = match.captured(3).isEmpty() || (port > 0 && port <= largestPort);
    if (!match.hasMatch() || !portIsValid) {
        m_problem = tr("Such an address reads rsync://host/module or rsync://user@host:port/"
                       "module/folder. It holds no password.");
        return;
    }
    if (path.isEmpty() || path.startsWith(QLatin1Char('/'))) {
        m_problem = tr("The name of a module is missing behind the host.");
        return;
    }
    if (!acceptRemotePath(path))
        return;
    m_port = port;
    m_base =
        withSeparator(QLatin1String(daemonScheme) + authority(match) + QLatin1Char('/') + path);
    m_kind = Kind::Daemon;
}

void UploadTarget::readShell()
{
    static const QRegularExpression url = expression(QStringLiteral("(?::([0-9]{1,5}))?(/.+)"));
    static const QRegularExpression brief = expression(QStringLiteral("()?:([^:].*)"));
    const bool isUrl = m_address.startsWith(QLatin1String(shellScheme));
    const auto match = isUrl ? url.match(m_address.mid(static_cast<int>(qstrlen(shellScheme))))
                             : brief.match(m_address);
    const int port = match.captured(3).toInt();
    const bool portIsValid = match.captured(3).isEmpty() || (port > 0 && port <= largestPort);
    if (!match.hasMatch() || !portIsValid || match.captured(4).startsWith(QLatin1String("//"))) {
        m_problem = tr("A target is the full path of a folder, rsync://host/module, "
                       "ssh://user@host/folder or user@host:folder.");
        return;
    }
    if (!acceptRemotePath(match.captured(4)))
        return;
    m_port = port;
    m_base = withSeparator(authority(match) + QLatin1Char(':') + match.captured(4));
    m_kind = Kind::Shell;
}

bool UploadTarget::acceptRemotePath(const QString &path)
{
    static const QRegularExpression patternCharacter(QStringLiteral("[*?\\[\\]\\\\]"));
    if (leavesItself(path))
        m_problem = tr("The path of a folder must not contain \"..\".");
    else if (path.contains(patternCharacter))
        m_problem = tr("A folder on another machine must not contain any of * ? [ ] \\.");
    return m_problem.isEmpty();
}

} // namespace Zavo
