#include "ZvFileIcons.h"

#include <QFileInfo>

namespace Zavo {

namespace {
constexpr int c_maximumSuffixes = 256;
}

ZvFileIcons::ZvFileIcons()
    : m_iconOfSuffix(c_maximumSuffixes)
    , m_typeOfSuffix(c_maximumSuffixes)
{
}

QIcon ZvFileIcons::icon(const QString &path, bool isDir) const
{
    if (isDir)
        return folderIcon();
    const QFileInfo info(path);
    const QString suffix = info.suffix().toCaseFolded();
    if (const QIcon *known = m_iconOfSuffix.object(suffix))
        return *known;
    const QIcon icon = m_provider.icon(info);
    m_iconOfSuffix.insert(suffix, new QIcon(icon));
    return icon;
}

// Few folders of stages have folders in them, and the provider reads the icon in every size.
QIcon ZvFileIcons::folderIcon() const
{
    if (m_folderIcon.isNull())
        m_folderIcon = m_provider.icon(QFileIconProvider::Folder);
    return m_folderIcon;
}

QString ZvFileIcons::type(const QString &path, bool isDir) const
{
    const QFileInfo info(path);
    if (isDir)
        return m_provider.type(info);
    const QString suffix = info.suffix().toCaseFolded();
    if (const QString *known = m_typeOfSuffix.object(suffix))
        return *known;
    const QString type = m_provider.type(info);
    m_typeOfSuffix.insert(suffix, new QString(type));
    return type;
}

} // namespace Zavo
