#pragma once

#include "upload/UploadTargets.h"

#include <QDialog>
#include <QList>

class QLabel;
class QPushButton;
class QTreeWidgetItem;

namespace Zavo {

class UploadRun;
class UploadTargetList;

/// The upload manager: the user's list of targets, and the upload to those that are selected. An
/// upload goes on while the dialog is closed, and ends with the dialog when that dies.
class UploadDialog final : public QDialog
{
    Q_OBJECT

public:
    /// @p logFolder is where the logs of uploads go.
    explicit UploadDialog(const QString &logFolder, QWidget *parent = nullptr);
    ~UploadDialog() override;

    bool isUploading() const;

    /// Shows the list of targets as it is stored; not to be called during an upload.
    void reloadTargets();

public Q_SLOTS:
    /// Cancels what is going on; without an upload nothing happens.
    void cancelUpload();

Q_SIGNALS:
    /// The user wants to see the log.
    void logRequested();

private Q_SLOTS:
    void upload();
    void retry();
    void onTargetsChanged();
    void onRunChanged();
    void onRunFinished();
    void updateButtons();

private:
    void createRunButtons();
    QList<UploadTarget> targetsToRetry() const;
    void start(const QList<UploadTarget> &targets);
    void showJob(int index);
    void clearResult(QTreeWidgetItem *item);

    const QString m_logFolder;
    UploadRun *m_run = nullptr; // the last one, null before the first
    UploadTargetList *m_list = nullptr;
    QLabel *m_summary = nullptr;
    QPushButton *m_upload = nullptr;
    QPushButton *m_retry = nullptr;
    QPushButton *m_cancel = nullptr;
    QPushButton *m_log = nullptr;
    QPushButton *m_close = nullptr;
};

} // namespace Zavo
