#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QPointer>
#include <QWidget>

namespace Zavo {

/// The log of uploads, which another part of the suite writes: it is found here and handed to the
/// desktop. What fails is told in a box above the window.
class ShownUploadLog final
{
    Q_DECLARE_TR_FUNCTIONS(Zavo::ShownUploadLog)

public:
    /// @p window may be null.
    explicit ShownUploadLog(QWidget *window);

    /// The folder of the log, made if it did not exist and could be made.
    static QDir folder();

    /// Opens the folder in the desktop's file manager.
    void openFolder() const;

    /// Opens the log whose name is the lowest. Without a log, offers to open the folder.
    void showFile() const;

private:
    static QString filePath();

    QPointer<QWidget> m_window;
};

} // namespace Zavo
