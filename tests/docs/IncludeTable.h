#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/// The table of docs/architecture.md that says which folder of src/ may include which. Folders are
/// named relative to src/.
class IncludeTable final
{
public:
    /// Reads the rows between the table's two marks in a Markdown text.
    static IncludeTable fromMarkdown(const QString &markdown);

    QStringList folders() const;

    /// What the files of @p folder may include besides their own: folders and single headers.
    QStringList allowed(const QString &folder) const;

    /// Why @p filePath may not contain what it includes, one sentence a finding. @p filePath is
    /// relative to @p sourceFolder, which is src/ or a tree of the same form.
    QStringList findings(const QString &sourceFolder, const QString &filePath) const;

    /// The folder of the table that @p filePath lies in, at any depth; empty if there is none.
    QString folderOf(const QString &filePath) const;

private:
    bool allows(const QString &folder, const QString &includedFile) const;

    QHash<QString, QStringList> m_allowed;
};
