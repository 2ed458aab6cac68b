#pragma once

#include "safety/BackupStore.h"
#include "safety/StateComparer.h"

#include <QDialog>
#include <QHash>
#include <QTimer>

#include <optional>

class QListWidget;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace Zavo {

/// Shows the safety copies of the channels, by channel and date, with what it would change to
/// restore each. It restores nothing itself: whoever runs it does when it was accepted.
class BackupDialog final : public QDialog
{
    Q_OBJECT

public:
    /// @p store must outlive the dialog.
    BackupDialog(const QString &dataDir, const BackupStore *store, QWidget *parent = nullptr);

    /// The state that is to be restored; none until the user has chosen one.
    std::optional<BackupState> chosenState() const;

    /// The title of the channel that @p state belongs to: its name, or the name of its file.
    static QString titleOf(const BackupState &state);

private Q_SLOTS:
    void showStates();
    void onCompared(const QString &path, const QString &text, bool isRestorable);
    void updateButton();
    /// Reads some more names, so that the window stays alive over a thousand channels.
    void nameNext();

private:
    void createWidgets();
    void connectWidgets();
    void fillChannels();
    void nameChannel(int row);

    const BackupStore *m_store = nullptr;
    StateComparer m_comparer;
    QList<BackupState> m_states;
    QHash<QString, QTreeWidgetItem *> m_itemOfPath;
    QTimer m_nameTimer;
    int m_namedCount = 0;
    QListWidget *m_channels = nullptr;
    QTreeWidget *m_tree = nullptr;
    QPushButton *m_restoreButton = nullptr;
};

} // namespace Zavo
