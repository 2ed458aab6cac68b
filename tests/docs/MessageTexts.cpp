#include "MessageTexts.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

namespace {

const QString everyClass = QStringLiteral("*");

QString contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// What stands between the parenthesis at @p open and the one that closes it.
QString inParentheses(const QString &code, int open)
{
    int depth = 0;
    bool quoted = false;
    for (int i = open; i < code.size(); ++i) {
        const QChar c = code.at(i);
        if (quoted && c == QLatin1Char('\\'))
            ++i;
        else if (c == QLatin1Char('"'))
            quoted = !quoted;
        else if (!quoted && c == QLatin1Char('('))
            ++depth;
        else if (!quoted && c == QLatin1Char(')') && --depth == 0)
            return code.mid(open + 1, i - open - 1);
    }
    return {};
}

QString unescaped(QString literal)
{
    literal.replace(QLatin1String("\\n"), QLatin1String("\n"));
    return literal.replace(QRegularExpression(QStringLiteral("\\\\(.)")), QStringLiteral("\\1"));
}

/// What tr() is called with, its pieces joined.
QStringList translated(const QString &code)
{
    static const QRegularExpression call(
        QStringLiteral("\\btr\\(\\s*((?:\"(?:[^\"\\\\]|\\\\.)*\"\\s*)+)"));
    static const QRegularExpression piece(QStringLiteral("\"((?:[^\"\\\\]|\\\\.)*)\""));
    QStringList texts;
    auto calls = call.globalMatch(code);
    while (calls.hasNext()) {
        QString text;
        auto pieces = piece.globalMatch(calls.next().captured(1));
        while (pieces.hasNext())
            text += unescaped(pieces.next().captured(1));
        texts.append(text);
    }
    return texts;
}

/// Titles and buttons are none.
bool isSentence(const QString &text)
{
    static const QRegularExpression end(QStringLiteral("([^.]\\.|[?!]|\\n)\\s*$"));
    return text.contains(QLatin1Char(' ')) &&
           (end.match(text).hasMatch() || text.contains(QLatin1Char('\n')));
}

QStringList identifiers(const QString &code)
{
    static const QRegularExpression word(QStringLiteral("\\b[a-zA-Z_]\\w*\\b(?!\\s*[(:])"));
    QStringList names;
    auto words = word.globalMatch(code);
    while (words.hasNext())
        names.append(words.next().captured());
    return names;
}

} // namespace

MessageTexts::MessageTexts(const QDir &sources, const QStringList &suppliers)
{
    QDirIterator files(sources.path(), {QStringLiteral("*.cpp")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        readFunctions(sources.relativeFilePath(path), contentOf(path));
    }
    while (findWays()) {
    }
    for (const Function &function : qAsConst(m_functions)) {
        collect(function);
        if (suppliers.contains(function.file))
            add(function.body, function.file);
    }
}

// The formatted sources have the braces of functions, and no others, at the beginning of a line.
void MessageTexts::readFunctions(const QString &file, const QString &source)
{
    static const QRegularExpression definition(
        QStringLiteral("\\n\\n(?:\\s*//[^\\n]*\\n)*([^\\n{}][^{}]*?)\\n\\{\\n(.*?)\\n\\}"),
        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression named(QStringLiteral("(?:(\\w+)::)?(~?\\w+)\\("));
    static const QRegularExpression parameter(QStringLiteral("QString &?(\\w+)\\s*[,)=]"));
    auto definitions = definition.globalMatch(source);
    while (definitions.hasNext()) {
        const QRegularExpressionMatch found = definitions.next();
        const QString head = found.captured(1);
        const QRegularExpressionMatch name = named.match(head);
        Function function{file, name.captured(1), name.captured(2), {}, found.captured(2)};
        auto parameters = parameter.globalMatch(head);
        while (parameters.hasNext())
            function.textParameters.append(parameters.next().captured(1));
        if (head.contains(QLatin1String(": QMessageBox("))) // a box of a class of its own
            add(function.body, file);
        m_functions.append(function);
    }
}

/// The arguments of each call that shows a box.
QStringList MessageTexts::callsThatShow(const Function &function) const
{
    static const QRegularExpression call(
        QStringLiteral("(QMessageBox (?=\\w+\\()|new QMessageBox(?=\\()|QMessageBox::(?=\\w+\\())?"
                       "\\b(\\w+)\\("));
    QStringList arguments;
    auto calls = call.globalMatch(function.body);
    while (calls.hasNext()) {
        const QRegularExpressionMatch found = calls.next();
        const QString name = found.captured(2);
        const QSet<QString> classes = m_ways.value(name);
        if (!found.captured(1).isEmpty() || name == QLatin1String("QMessageBox") ||
            name == QLatin1String("showMessageBox") || classes.contains(everyClass) ||
            classes.contains(function.scope))
            arguments.append(inParentheses(function.body, found.capturedEnd() - 1));
    }
    // A box that is made first and worded then.
    static const QRegularExpression worded(QStringLiteral("\\b\\w*[bB]ox(?:\\.|->)set\\w*Text\\("));
    auto wordings = worded.globalMatch(function.body);
    while (wordings.hasNext())
        arguments.append(inParentheses(function.body, wordings.next().capturedEnd() - 1));
    return arguments;
}

/// True if there is another function that hands a text on.
bool MessageTexts::findWays()
{
    bool found = false;
    for (const Function &function : qAsConst(m_functions)) {
        if (m_ways.value(function.name).contains(function.scope))
            continue;
        QSet<QString> shown;
        for (const QString &arguments : callsThatShow(function)) {
            for (const QString &name : identifiers(arguments))
                shown.insert(name);
        }
        const auto &parameters = function.textParameters;
        if (!shown.intersects(QSet<QString>(parameters.cbegin(), parameters.cend())) ||
            function.name == QLatin1String("showMessageBox"))
            continue;
        m_ways[function.name].insert(function.scope);
        if (function.name.startsWith(QLatin1String("on"))) { // the slot of a signal
            const QString signal = function.name.mid(2, 1).toLower() + function.name.mid(3);
            m_ways[signal].insert(everyClass);
        }
        found = true;
    }
    return found;
}

void MessageTexts::collect(const Function &function)
{
    for (const QString &arguments : callsThatShow(function)) {
        add(arguments, function.file);
        for (const QString &name : identifiers(arguments)) {
            const QRegularExpression assignment(
                QStringLiteral("\\b%1 \\+?=\\s([^;]*);|\\b%1\\.\\w+pend\\([^;]*;").arg(name));
            auto assignments = assignment.globalMatch(function.body);
            while (assignments.hasNext())
                add(assignments.next().captured(), function.file);
        }
    }
}

void MessageTexts::add(const QString &code, const QString &file)
{
    for (const QString &text : translated(code)) {
        if (isSentence(text))
            m_texts.insert(text, file);
    }
}
