#include "safety/FolderInUseBox.h"

#include <QAbstractButton>
#include <QDir>
#include <QGuiApplication>
#include <QLocale>

namespace Zavo {

FolderInUseBox::FolderInUseBox(const QString &dataDir, const DataFolderLock &lock, QWidget *parent)
    : QMessageBox(parent)
{
    setWindowTitle(QGuiApplication::applicationDisplayName());
    setIcon(Warning);
    setTextFormat(Qt::PlainText);
    setText(sentence(dataDir, lock));
    QString advice = tr("Two programs on one data folder would overwrite each other's channels. "
                        "Close the other program, or choose another folder.");
    StandardButtons buttons = TryAgain | ChooseAnother | Leave;
    if (lock.isHolderElsewhere()) {
        advice += tr("\n\nIf you are sure that the other program no longer runs, because its "
                     "machine was switched off, the folder can be taken over.");
        buttons |= TakeOver;
    }
    setInformativeText(advice);
    setStandardButtons(buttons);
    button(ChooseAnother)->setText(tr("Choose Another &Folder..."));
    button(Leave)->setText(tr("&Exit"));
    if (lock.isHolderElsewhere())
        button(TakeOver)->setText(tr("&Take Over"));
    setDefaultButton(TryAgain);
    setEscapeButton(Leave);
}

QString FolderInUseBox::sentence(const QString &dataDir, const DataFolderLock &lock)
{
    const DataFolderLock::Holder holder = lock.holder();
    const QString folder = QDir::toNativeSeparators(dataDir);
    // The other program can end while it is asked about.
    if (holder.processId == 0)
        return tr("The data folder \"%1\" is open in another program.").arg(folder);
    return tr("The data folder \"%1\" is open in another program: %2 (process %3 on %4, since %5).")
        .arg(folder, holder.program, QString::number(holder.processId), holder.host,
             QLocale().toString(holder.since, QLocale::ShortFormat));
}

} // namespace Zavo
