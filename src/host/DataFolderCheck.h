#pragma once

#include <QCoreApplication>
#include <QString>

namespace Zavo {

/// Looks at the data folder before the editor opens it. The editor takes a channel folder in which
/// it finds no files for a first start and writes its first channels into it; so a folder that
/// cannot be listed must never get that far.
class DataFolderCheck final
{
    Q_DECLARE_TR_FUNCTIONS(Zavo::DataFolderCheck)

public:
    /// Lists a folder to its end and returns 0, or the errno of the step that failed.
    using ListFolder = int (*)(const QByteArray &folder);

    explicit DataFolderCheck(ListFolder listFolder = listWholeFolder);

    /// Why the editor may not open this data folder, in a sentence or two for the user; empty if it
    /// may. A folder that does not exist is no obstacle: the editor creates it.
    QString problem(const QString &dataDir) const;

    static int listWholeFolder(const QByteArray &folder);

private:
    /// @p missing receives true if nothing of that name exists.
    QString problemOfFolder(const QString &folder, bool *missing) const;

    ListFolder m_listFolder;
};

} // namespace Zavo
