#pragma once

#include "shortcuts/ShortcutCommand.h"

#include <QDialog>

class QBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace Zavo {

class ShortcutEdit;
class Shortcuts;

/// Shows the keys of all commands and changes them. Works on a copy: the actions get their keys
/// when the dialog is accepted. A key that something else needs is not taken over; one that another
/// command has can be taken away from it.
class ShortcutDialog final : public QDialog
{
    Q_OBJECT

public:
    /// @p shortcuts has to live as long as the dialog.
    explicit ShortcutDialog(Shortcuts *shortcuts, QWidget *parent = nullptr);

    /// As they are shown.
    const ShortcutKeys &keys() const { return m_keys; }

public Q_SLOTS:
    /// Gives the actions the keys that are shown and stores them.
    void accept() override;

    /// Shows only the commands whose name, category or keys hold @p text.
    void filter(const QString &text);

private Q_SLOTS:
    void onCurrentItemChanged();
    void onKeysTyped(const QKeySequence &sequence);
    void clearKeys();
    void resetKeys();
    void resetAllKeys();
    void reassignKeys();

private:
    void createTree();
    void fillTree();
    QBoxLayout *createEditor();
    QWidget *createButtons();
    int currentCommand() const;
    void setKeys(int command, const QList<QKeySequence> &sequences);
    void showKeys(int command);
    void showEditor();
    void showProblem(const QString &reason, int holder);

    Shortcuts *m_shortcuts = nullptr;
    ShortcutKeys m_keys;
    QLineEdit *m_filter = nullptr;
    QTreeWidget *m_tree = nullptr;
    QVector<QTreeWidgetItem *> m_items; // of the commands, owned by the tree
    QLabel *m_keyLabel = nullptr;
    ShortcutEdit *m_keyEdit = nullptr;
    QPushButton *m_clearButton = nullptr;
    QPushButton *m_resetButton = nullptr;
    QPushButton *m_resetAllButton = nullptr;
    QLabel *m_problem = nullptr;
    QPushButton *m_reassignButton = nullptr;
    QKeySequence m_wantedSequence; // that another command has
    int m_holder = -1;             // that command
};

} // namespace Zavo
