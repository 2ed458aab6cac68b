#pragma once

#include "upload/UploadTargets.h"

#include <QList>
#include <QStringList>
#include <QWidget>

class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
class QVBoxLayout;

namespace Zavo {

/// A list of targets with check boxes, and the buttons by which it is edited. It stores nothing.
class UploadTargetList final : public QWidget
{
    Q_OBJECT

public:
    static constexpr int targetColumn = 0;

    /// @p moreColumns are the headers of the columns behind the addresses, for others to fill.
    explicit UploadTargetList(const QStringList &moreColumns, QWidget *parent = nullptr);

    QList<ListedTarget> targets() const;

    /// Those that are checked, in their order.
    QList<UploadTarget> selectedTargets() const;

    /// Null if the target is not in the list.
    QTreeWidgetItem *itemOf(const UploadTarget &target) const;

    QTreeWidget *tree() const { return m_tree; }

    /// Replaces the list without changed().
    void setTargets(const QList<ListedTarget> &targets);

    /// Whether targets can be added, changed and removed. True at first.
    void setEditable(bool editable);

Q_SIGNALS:
    /// The user has changed the list or a check.
    void changed();

private Q_SLOTS:
    void addTarget();
    void changeTarget();
    void removeTarget();
    void onItemChanged(QTreeWidgetItem *item, int column);
    void updateButtons();

private:
    void createTree(const QStringList &moreColumns);
    QVBoxLayout *createButtons();
    QTreeWidgetItem *addItem(const ListedTarget &listed);
    void editTarget(QTreeWidgetItem *item);
    void replaceTarget(QTreeWidgetItem *item, const UploadTarget &target);
    QTreeWidgetItem *currentItem() const;

    QTreeWidget *m_tree = nullptr;
    QPushButton *m_add = nullptr;
    QPushButton *m_change = nullptr;
    QPushButton *m_remove = nullptr;
    bool m_isEditable = true;
};

} // namespace Zavo
