#include "IncludeTable.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

QStringList quotedNames(const QString &cell)
{
    static const QRegularExpression expression(QStringLiteral("`([^`]+)`"));
    QStringList names;
    auto matches = expression.globalMatch(cell);
    while (matches.hasNext())
        names.append(matches.next().captured(1));
    return names;
}

/// The header that generate_export_header writes for a library stands for that library.
QString generatedHeader(const QString &name)
{
    static const QHash<QString, QString> headers{
        {QStringLiteral("ZvCoreExport.h"), QStringLiteral("core/ZvCoreExport.h")},
        {QStringLiteral("ZvEditorCommonExport.h"),
         QStringLiteral("editorcommon/ZvEditorCommonExport.h")},
        {QStringLiteral("ZvScheduleEditorExport.h"),
         QStringLiteral("scheduleeditor/editor/ZvScheduleEditorExport.h")},
    };
    return headers.value(name);
}

/// Path below src/ of what an include line names, as the compiler would find it.
QString resolve(const QDir &source, const QString &includingFile, const QString &name)
{
    const QStringList roots{QFileInfo(includingFile).path(), QStringLiteral("core"),
                            QStringLiteral("editorcommon"), QStringLiteral("scheduleeditor"),
                            QStringLiteral("host")};
    for (const QString &root : roots) {
        const QString candidate = QDir::cleanPath(root + QLatin1Char('/') + name);
        if (QFileInfo(source.filePath(candidate)).isFile())
            return candidate;
    }
    return generatedHeader(name);
}

QStringList includedNames(const QString &filePath)
{
    static const QRegularExpression expression(QStringLiteral("^\\s*#\\s*include\\s*\"([^\"]+)\""),
                                               QRegularExpression::MultilineOption);
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList names;
    auto matches = expression.globalMatch(QString::fromUtf8(file.readAll()));
    while (matches.hasNext())
        names.append(matches.next().captured(1));
    return names;
}

} // namespace

IncludeTable IncludeTable::fromMarkdown(const QString &markdown)
{
    IncludeTable table;
    const QString rows = markdown.section(QStringLiteral("<!-- include-table -->"), 1)
                             .section(QStringLiteral("<!-- /include-table -->"), 0, 0);
    for (const QString &row : rows.split(QLatin1Char('\n'))) {
        const QStringList cells = row.split(QLatin1Char('|'));
        const QStringList folder = cells.size() == 4 ? quotedNames(cells.at(1)) : QStringList();
        if (folder.size() == 1)
            table.m_allowed.insert(folder.first(), quotedNames(cells.at(2)));
    }
    return table;
}

QStringList IncludeTable::folders() const
{
    return m_allowed.keys();
}

QStringList IncludeTable::allowed(const QString &folder) const
{
    return m_allowed.value(folder);
}

QStringList IncludeTable::findings(const QString &sourceFolder, const QString &filePath) const
{
    const QString folder = folderOf(filePath);
    if (folder.isEmpty())
        return {QStringLiteral("%1 lies in no folder of the table").arg(filePath)};
    QStringList findings;
    const QDir source(sourceFolder);
    for (const QString &name : includedNames(source.filePath(filePath))) {
        if (name.endsWith(QLatin1String(".moc")))
            continue;
        const QString included = resolve(source, filePath, name);
        if (included.isEmpty())
            findings.append(QStringLiteral("%1 includes %2, which is nowhere").arg(filePath, name));
        else if (!allows(folder, included))
            findings.append(QStringLiteral("%1 may not include %2").arg(filePath, included));
    }
    return findings;
}

QString IncludeTable::folderOf(const QString &filePath) const
{
    QString folder = QFileInfo(filePath).path();
    while (!m_allowed.contains(folder) && folder.contains(QLatin1Char('/')))
        folder.truncate(folder.lastIndexOf(QLatin1Char('/')));
    return m_allowed.contains(folder) ? folder : QString();
}

bool IncludeTable::allows(const QString &folder, const QString &includedFile) const
{
    const QString includedFolder = folderOf(includedFile);
    const QStringList allowed = m_allowed.value(folder);
    return includedFolder == folder || allowed.contains(includedFolder) ||
           allowed.contains(includedFile);
}
