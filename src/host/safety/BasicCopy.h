#pragma once

#include <QString>

namespace Zavo {

/// The copy of the basic channel's file, which goes before its original at a start.
class BasicCopy final
{
public:
    explicit BasicCopy(const QString &dataDir);

    /// True if there is a copy and it holds what no channel file holds, or cannot be looked at.
    bool isOutdated() const;

private:
    bool isCopyOf(const QString &filePath) const;

    QString m_folder;
    QString m_path;
};

} // namespace Zavo
