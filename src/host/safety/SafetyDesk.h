#pragma once

#include "safety/BackupStore.h"

#include <QObject>
#include <QStringList>

#include <optional>

class QAction;

namespace Zavo {

class HostWindow;
class NoticeBar;
class SafetyNet;
class UnsavedEdits;

/// What the user sees of the safety net in the window: notices, the question before another
/// program's state is overwritten, and the way to the copies.
class SafetyDesk final : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this object. The window has been started.
    SafetyDesk(const QString &dataDir, SafetyNet *net, HostWindow *window);
    ~SafetyDesk() override;

    /// The state that the user wants back. The window was closed for its sake, and is to be opened
    /// anew once the state is restored.
    std::optional<BackupState> wantedState() const { return m_wantedState; }

    /// Puts the state in the place of its channel file, and of the copy that is kept of the basic
    /// channel. False if the old file stays.
    static bool restore(const QString &dataDir, const BackupState &state);

    /// What to tell the user about what was saved just now, the first time that there is something;
    /// empty otherwise.
    QString remarkOnSaving();

    /// Tells @p text in a box over the window, once the window is there.
    void tell(const QString &text);

public Q_SLOTS:
    void showCopies();

private Q_SLOTS:
    void onChangedByOthers(const QStringList &fileNames);
    void onCopiesFailed(const QString &reason);
    void onSaved();

private:
    void addAction();
    bool confirmRestoring(const BackupState &state);
    bool mayReplace(const QString &filePath);

    QString m_dataDir;
    SafetyNet *m_net = nullptr;
    HostWindow *m_window = nullptr;
    QAction *m_copiesAction = nullptr;
    NoticeBar *m_notices = nullptr;
    bool m_isBasicCopyOutdated = false;
    UnsavedEdits *m_unsaved = nullptr;
    std::optional<BackupState> m_wantedState;
};

} // namespace Zavo
