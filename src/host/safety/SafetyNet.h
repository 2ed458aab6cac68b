#pragma once

#include "safety/BackupStore.h"
#include "safety/ChannelGuard.h"
#include "safety/ChannelStates.h"
#include "safety/SessionRecord.h"

#include <QObject>
#include <QStringList>
#include <QThread>

#include <optional>

namespace Zavo {

class SafetyWorker;

/// Watches over one data folder while the program has it open: keeps copies of what is replaced or
/// removed, notices what other programs change, and records the session, so that the next one can
/// tell of an end that was none. Made after the folder was locked and before a channel is read; to
/// delete it is to end the session properly.
class SafetyNet final : public QObject
{
    Q_OBJECT

public:
    explicit SafetyNet(const QString &dataDir, QObject *parent = nullptr);
    ~SafetyNet() override;

    /// The session before this one, if it did not end properly.
    std::optional<SessionRecord::Session> leftSession() const { return m_leftSession; }

    BackupStore *store() { return &m_store; }

    /// True if the copy of the basic channel was replaced since the last call.
    bool takeBasicReplaced() { return m_guard.takeBasicReplaced(); }

    void setQuestion(const ChannelGuard::Question &question) { m_guard.setQuestion(question); }

public Q_SLOTS:
    void recordUnsaved(const QStringList &channelNames);

Q_SIGNALS:
    /// As those of SafetyWorker, on the thread of this object.
    void changedByOthers(const QStringList &fileNames);
    void copiesFailed(const QString &reason);

    void unsavedRecordRequested(const QStringList &channelNames);

private:
    SessionRecord m_record;
    std::optional<SessionRecord::Session> m_leftSession;
    BackupStore m_store;
    ChannelStates m_states;
    ChannelGuard m_guard;
    QThread m_thread;
    SafetyWorker *m_worker = nullptr;
};

} // namespace Zavo
