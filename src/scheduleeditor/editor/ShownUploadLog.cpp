#include "editor/ShownUploadLog.h"

#include "domain/MessageBox.h"

#include "Path.h"
#include "ZvEditorConfig.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace Zavo {

namespace {

const QLatin1String LogFolderName("Log");
const QLatin1String EditorFolderName("Editor");
const QLatin1String LogFilePattern("UploadLog*.txt");

/// The desktop is given the bare path: it chooses the program by the path's kind, not by a scheme.
bool openOnDesktop(const QString &absolutePath)
{
    return QDesktopServices::openUrl(QUrl(absolutePath, QUrl::TolerantMode));
}

} // namespace

ShownUploadLog::ShownUploadLog(QWidget *window)
    : m_window(window)
{
}

QDir ShownUploadLog::folder()
{
    const QDir dir(
        Path::combine(Path::combine(ZvEditorConfig::dataDir(), LogFolderName), EditorFolderName));
    if (!dir.exists())
        QDir().mkpath(dir.absolutePath());
    return dir;
}

QString ShownUploadLog::filePath()
{
    const QDir dir = folder();
    const QStringList names =
        dir.entryList({LogFilePattern}, QDir::Files | QDir::NoDotAndDotDot, QDir::Name);
    return names.isEmpty() ? QString() : dir.absoluteFilePath(names.first());
}

void ShownUploadLog::openFolder() const
{
    const QDir dir = folder();
    const QString title = tr("Open Log Folder");
    if (!dir.exists()) {
        showMessageBox(m_window, QMessageBox::Critical, title,
                       tr("The log folder does not exist.\n"));
    } else if (!openOnDesktop(dir.absolutePath())) {
        showMessageBox(m_window, QMessageBox::Critical, title,
                       tr("The log folder can not be opened.\n"));
    }
}

void ShownUploadLog::showFile() const
{
    const QString path = filePath();
    const QString title = tr("Open Log File");
    if (!path.isEmpty() && QFileInfo::exists(path)) {
        if (!openOnDesktop(path)) {
            showMessageBox(m_window, QMessageBox::Critical, title,
                           tr("The log file can not be opened.\nPlease make sure that you have an "
                              "application that is associated with the extension \".txt\"."));
        }
        return;
    }
    const int answer =
        showMessageBox(m_window, QMessageBox::Warning, title,
                       tr("The log file does not exist.\nDo you want to open the log folder?"),
                       QMessageBox::Yes | QMessageBox::No);
    if (answer == QMessageBox::Yes)
        openFolder();
}

} // namespace Zavo
