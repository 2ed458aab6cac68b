#pragma once

#include "storage/FileSystemCalls.h"

#include <QtGlobal>

#include <atomic>
#include <functional>

class QFile;
class QString;

namespace Zavo {

class ChannelStates;
class BackupStore;

/// Stands before every channel file that this program replaces, while it lives: the state that is
/// about to go is copied first, and if it is another program's, the user is asked.
class ChannelGuard final : public FileSystemCalls
{
    Q_DISABLE_COPY(ChannelGuard)

public:
    /// Whether the state that another program gave this file may be replaced.
    using Question = std::function<bool(const QString &filePath)>;

    /// Both must outlive this object, which is made and deleted while no other thread writes files.
    ChannelGuard(ChannelStates *states, BackupStore *store);
    ~ChannelGuard() override;

    /// Asked on the GUI thread. Without a question, and on other threads, nothing of another
    /// program is replaced.
    void setQuestion(const Question &question);

    /// True if the copy of the basic channel was replaced since the last call.
    bool takeBasicReplaced() { return m_basicReplaced.exchange(false); }

    /// Replaces a channel file only if nobody objects; otherwise it fails with ECANCELED.
    int rename(const char *from, const char *to) override;

    /// Keeps what should have been written to a channel file among the copies, whatever was in the
    /// way.
    void onNotReplaced(const QString &filePath, const QByteArray &bytes) override;

private:
    bool mayReplace(const QString &filePath) const;
    void keepReplaced(const QString &filePath, QFile *ours);

    ChannelStates *m_states = nullptr;
    BackupStore *m_store = nullptr;
    Question m_question;
    std::atomic<bool> m_basicReplaced{false};
};

} // namespace Zavo
