#pragma once

#include "safety/DataFolderLock.h"

#include <QMessageBox>

namespace Zavo {

/// Tells that another program has the data folder open, and asks what to do.
class FolderInUseBox final : public QMessageBox
{
    Q_OBJECT

public:
    /// What the buttons stand for; the box returns them from exec(). Closing it leaves the program.
    static constexpr StandardButton TryAgain = Retry;
    static constexpr StandardButton ChooseAnother = Open;
    static constexpr StandardButton TakeOver = Ignore; ///< only if the holder is elsewhere
    static constexpr StandardButton Leave = Close;

    FolderInUseBox(const QString &dataDir, const DataFolderLock &lock, QWidget *parent = nullptr);

    /// Who holds the folder, in a sentence.
    static QString sentence(const QString &dataDir, const DataFolderLock &lock);
};

} // namespace Zavo
