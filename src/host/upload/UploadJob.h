#pragma once

#include "upload/RsyncProcess.h"
#include "upload/UploadSet.h"
#include "upload/UploadTarget.h"

#include <QObject>
#include <QStringList>

#include <memory>

namespace Zavo {

class BackupStore;
class TargetKeeper;

/// The upload of one set to one target.
///
/// First the whole set is put together in a hidden folder at the target; what already lies at the
/// target is linked to instead of sent again. Nothing that is in use has been touched when that
/// ends, however it ends. Then the channel files that are about to be replaced or removed there are
/// fetched, and kept among the safety copies. Only then are the files put in place, by links to
/// those in the hidden folder, each of which replaces its file at once: the stages first, then the
/// channels that show them, and at last what the set no longer holds is removed. That part sends no
/// contents and so takes a moment, in which it cannot be cancelled.
///
/// If the target holds channels or stages that no upload put there, these are kept in a folder
/// beside instead of being replaced; where they differ, contents are then sent a second time.
class UploadJob final : public QObject
{
    Q_OBJECT

public:
    enum class State { Waiting, Running, Done, Failed, Cancelled };

    /// @p store takes what is replaced at the target.
    UploadJob(const UploadTarget &target, const std::shared_ptr<BackupStore> &store,
              QObject *parent = nullptr);

    /// Breaks the transfer off; but files that are being put in place are waited for, for a while.
    ~UploadJob() override;

    const UploadTarget &target() const { return m_target; }
    State state() const { return m_state; }

    /// True in every state that comes to no other by itself.
    bool isOver() const;

    /// 0 to 100.
    int percent() const { return m_percent; }

    /// Sentences for the user: what is going on or how it ended.
    QString message() const { return m_message; }

    /// What rsync said about a failure, and what was done for safety.
    QStringList details() const { return m_details; }

    /// Begins the transfer of the set, which stays unchanged meanwhile. A folder that overlaps with
    /// the origin of the set is refused.
    void start(const UploadSet &set);

    /// Ends the job without a transfer.
    void fail(const QString &message);

public Q_SLOTS:
    /// Ends the job, at once if it waits. While files are put in place it does nothing.
    void cancel();

Q_SIGNALS:
    /// State, percent or message are other ones. After the last of these signals the job is over.
    void changed();

private Q_SLOTS:
    void onProgressed(int percent);
    void onEnded();
    void onFolderFound(const QString &canonicalPath);
    void onReplacedKept();

private:
    enum class Step { Find, Look, Assemble, Fetch, Keep, PlaceStages, PlaceAll, CleanUp };

    void findFolder();
    void startStep(Step step);
    QString stepMessage() const;
    QStringList arguments() const;
    bool isPlacing() const;
    QString doneMessage() const;
    QString linkAtTarget() const;
    void onLooked();
    void onAssembled();
    void onFetched();
    void onStepDone();
    void end(State state, const QString &message);

    UploadTarget m_target;
    UploadSet m_set;
    RsyncProcess m_rsync;
    State m_state = State::Waiting;
    Step m_step = Step::Find;
    int m_percent = 0;
    QString m_message;
    QStringList m_details;
    QString m_keptFolder; // at the target; empty if there is nothing to be kept
    const std::shared_ptr<BackupStore> m_store;
    std::unique_ptr<TargetKeeper> m_keeper;
    bool m_hasChannels = false; // the target
    bool m_keepingFailed = false;
};

} // namespace Zavo
