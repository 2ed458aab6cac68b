#pragma once

#include <QCache>
#include <QFileIconProvider>
#include <QIcon>

namespace Zavo {

/// The icons and kinds of files and folders. The desktop is asked once for each suffix, since that
/// is slow.
class ZvFileIcons final
{
public:
    ZvFileIcons();

    QIcon icon(const QString &path, bool isDir) const;

    /// What kind of file the desktop takes the path for.
    QString type(const QString &path, bool isDir) const;

private:
    QIcon folderIcon() const;

    QFileIconProvider m_provider;
    mutable QIcon m_folderIcon;
    mutable QCache<QString, QIcon> m_iconOfSuffix;
    mutable QCache<QString, QString> m_typeOfSuffix;
};

} // namespace Zavo
