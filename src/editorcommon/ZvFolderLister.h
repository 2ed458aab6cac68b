#pragma once

#include <QDir>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>
#include <QVector>

namespace Zavo {

/// Says which entries of a folder are shown, and lists them. Knows no model.
class ZvFolderLister final
{
public:
    QStringList nameFilters() const { return m_nameFilters; }
    QDir::Filters filter() const { return m_filter; }
    QStringList exclusionPatterns() const { return m_exclusionPatterns; }

    /// The names of the entries of @p folder that are shown, each with whether it is a folder.
    /// Empty if @p folder is none or cannot be read. Takes no look at the files themselves as
    /// long as the file system tells files from folders while listing.
    QHash<QString, bool> list(const QString &folder) const;

    /// Wildcards for the names of files; none shows all.
    void setNameFilters(const QStringList &filters) { m_nameFilters = filters; }
    void setFilter(QDir::Filters filter) { m_filter = filter; }

    /// Regular expressions, each for the whole name of a file. One that is invalid excludes
    /// nothing and prints a warning.
    void setExclusionPatterns(const QStringList &patterns);

private:
    bool isExcluded(const QString &fileName) const;

    QStringList m_nameFilters;
    QDir::Filters m_filter = QDir::AllEntries | QDir::NoDotAndDotDot | QDir::AllDirs;
    QStringList m_exclusionPatterns;
    QVector<QRegularExpression> m_exclusions;
};

} // namespace Zavo
