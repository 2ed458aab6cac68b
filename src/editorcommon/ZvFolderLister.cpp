#include "ZvFolderLister.h"

#include <QDebug>
#include <QDirIterator>

#include <algorithm>

namespace Zavo {

QHash<QString, bool> ZvFolderLister::list(const QString &folder) const
{
    QHash<QString, bool> entries;
    // The dots would make a folder its own child.
    QDirIterator it(folder, m_nameFilters, m_filter | QDir::NoDotAndDotDot);
    while (it.hasNext()) {
        it.next();
        const bool isDir = it.fileInfo().isDir();
        const QString name = it.fileName();
        if (isDir || !isExcluded(name))
            entries.insert(name, isDir);
    }
    return entries;
}

void ZvFolderLister::setExclusionPatterns(const QStringList &patterns)
{
    m_exclusionPatterns = patterns;
    m_exclusions.clear();
    for (const QString &pattern : patterns) {
        // A file name may hold a line break, which "." is meant to match.
        QRegularExpression expression(QRegularExpression::anchoredPattern(pattern),
                                      QRegularExpression::DotMatchesEverythingOption);
        if (expression.isValid())
            m_exclusions.append(expression);
        else
            qWarning() << "Exclusion pattern is no regular expression:" << pattern;
    }
}

bool ZvFolderLister::isExcluded(const QString &fileName) const
{
    return std::any_of(m_exclusions.cbegin(), m_exclusions.cend(),
                       [&fileName](const QRegularExpression &expression) {
                           return expression.match(fileName).hasMatch();
                       });
}

} // namespace Zavo
