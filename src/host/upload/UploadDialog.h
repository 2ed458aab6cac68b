#pragma once

#include "check/CheckFinding.h"
#include "upload/UploadTargets.h"

#include <QDialog>
#include <QList>
#include <QPointer>
#include <QVector>

class QLabel;
class QPushButton;
class QTreeWidgetItem;

namespace Zavo {

class UploadCheck;
class UploadFindingsDialog;
class UploadRun;
class UploadTargetList;

/// The upload manager: the user's list of targets, and the upload to those that are selected. The
/// data are checked before; with findings the user is asked whether to go on. An upload goes on
/// while the dialog is closed, and ends with the dialog when that dies.
class UploadDialog final : public QDialog
{
    Q_OBJECT

public:
    /// @p logFolder is where the logs of uploads go.
    explicit UploadDialog(const QString &logFolder, QWidget *parent = nullptr);
    ~UploadDialog() override;

    /// True from the check on, and while the user is asked about its findings.
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
    void onCheckProgressed(int done, int total);
    void onChecked();
    void onGoingOn();
    void onStopped();
    void onRunChanged();
    void onRunFinished();
    void updateButtons();

private:
    void createRunButtons();
    QList<UploadTarget> targetsToRetry() const;
    void begin(const QList<UploadTarget> &targets);
    void ask(const CheckReport &report);
    void start();
    void giveUp(const QString &reason);
    void showJob(int index);
    void clearResult(QTreeWidgetItem *item);

    const QString m_logFolder;
    UploadRun *m_run = nullptr; // the last one, null before the first
    UploadCheck *m_check = nullptr;
    QPointer<UploadFindingsDialog> m_question; // null while nothing is asked
    QList<UploadTarget> m_wanted;              // of the upload that is being checked
    QVector<CheckFinding> m_findings;          // that the user accepted
    UploadTargetList *m_list = nullptr;
    QLabel *m_summary = nullptr;
    QPushButton *m_upload = nullptr;
    QPushButton *m_retry = nullptr;
    QPushButton *m_cancel = nullptr;
    QPushButton *m_log = nullptr;
    QPushButton *m_close = nullptr;
};

} // namespace Zavo
