#include "upload/UploadTargetList.h"

#include "upload/UploadButton.h"
#include "upload/UploadNames.h"
#include "upload/UploadTargetDialog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Zavo {

UploadTargetList::UploadTargetList(const QStringList &moreColumns, QWidget *parent)
    : QWidget(parent)
    , m_tree(new QTreeWidget(this))
{
    createTree(moreColumns);
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_tree);
    layout->addLayout(createButtons());
    setFocusProxy(m_tree);
    updateButtons();
}

QList<ListedTarget> UploadTargetList::targets() const
{
    QList<ListedTarget> result;
    for (int index = 0; index < m_tree->topLevelItemCount(); ++index) {
        const QTreeWidgetItem *const item = m_tree->topLevelItem(index);
        result.append({UploadTarget(item->text(targetColumn)),
                       item->checkState(targetColumn) == Qt::Checked});
    }
    return result;
}

QList<UploadTarget> UploadTargetList::selectedTargets() const
{
    QList<UploadTarget> result;
    const QList<ListedTarget> all = targets();
    for (const ListedTarget &listed : all) {
        if (listed.selected)
            result.append(listed.target);
    }
    return result;
}

QTreeWidgetItem *UploadTargetList::itemOf(const UploadTarget &target) const
{
    for (int index = 0; index < m_tree->topLevelItemCount(); ++index) {
        if (m_tree->topLevelItem(index)->text(targetColumn) == target.address())
            return m_tree->topLevelItem(index);
    }
    return nullptr;
}

void UploadTargetList::setTargets(const QList<ListedTarget> &targets)
{
    m_tree->clear();
    for (const ListedTarget &listed : targets)
        addItem(listed);
    updateButtons();
}

void UploadTargetList::setEditable(bool editable)
{
    m_isEditable = editable;
    updateButtons();
}

void UploadTargetList::addTarget()
{
    editTarget(nullptr);
}

void UploadTargetList::changeTarget()
{
    if (QTreeWidgetItem *const item = currentItem())
        editTarget(item);
}

void UploadTargetList::removeTarget()
{
    delete currentItem();
    updateButtons();
    Q_EMIT changed();
}

void UploadTargetList::onItemChanged(QTreeWidgetItem *, int column)
{
    if (column == targetColumn)
        Q_EMIT changed();
}

void UploadTargetList::updateButtons()
{
    const bool hasCurrent = currentItem() != nullptr;
    m_add->setEnabled(m_isEditable);
    m_change->setEnabled(m_isEditable && hasCurrent);
    m_remove->setEnabled(m_isEditable && hasCurrent);
}

void UploadTargetList::createTree(const QStringList &moreColumns)
{
    m_tree->setObjectName(QLatin1String(UploadNames::targetList));
    m_tree->setAccessibleName(tr("Targets of uploads"));
    m_tree->setHeaderLabels(QStringList(tr("Target")) + moreColumns);
    m_tree->setHeaderHidden(moreColumns.isEmpty());
    m_tree->setRootIsDecorated(false);
    m_tree->setUniformRowHeights(true);
    m_tree->setAllColumnsShowFocus(true);
    m_tree->header()->setSectionsMovable(false);
    // clang-format off
    connect(m_tree, SIGNAL(itemChanged(QTreeWidgetItem*,int)), this,
                    SLOT(onItemChanged(QTreeWidgetItem*,int)));
    connect(m_tree, SIGNAL(itemSelectionChanged()), this, SLOT(updateButtons()));
    // clang-format on
}

QVBoxLayout *UploadTargetList::createButtons()
{
    m_add = createUploadButton(this, UploadNames::addButton, tr("&Add..."),
                               tr("Enter a new target"), SLOT(addTarget()));
    m_change =
        createUploadButton(this, UploadNames::changeButton, tr("C&hange..."),
                           tr("Change the address of the chosen target"), SLOT(changeTarget()));
    m_remove = createUploadButton(this, UploadNames::removeButton, tr("&Remove"),
                                  tr("Take the chosen target from the list; what lies there stays"),
                                  SLOT(removeTarget()));
    auto *const layout = new QVBoxLayout;
    for (QPushButton *button : {m_add, m_change, m_remove})
        layout->addWidget(button);
    layout->addStretch();
    return layout;
}

QTreeWidgetItem *UploadTargetList::addItem(const ListedTarget &listed)
{
    const QSignalBlocker quiet(m_tree);
    auto *const item = new QTreeWidgetItem(m_tree, {listed.target.address()});
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
                   Qt::ItemNeverHasChildren);
    item->setCheckState(targetColumn, listed.selected ? Qt::Checked : Qt::Unchecked);
    item->setToolTip(targetColumn, listed.target.address());
    return item;
}

void UploadTargetList::editTarget(QTreeWidgetItem *item)
{
    const QPointer<UploadTargetList> alive(this);
    UploadTargetDialog dialog(item ? item->text(targetColumn) : QString(), this);
    if (dialog.exec() != QDialog::Accepted || !alive)
        return;
    const UploadTarget target = dialog.target();
    QTreeWidgetItem *const known = itemOf(target);
    if (known && known != item) {
        QMessageBox::warning(this, dialog.windowTitle(),
                             tr("The target \"%1\" is in the list already.").arg(target.address()));
        return;
    }
    if (item)
        replaceTarget(item, target);
    else
        item = addItem({target, true});
    item->setToolTip(targetColumn, target.address());
    m_tree->setCurrentItem(item);
    Q_EMIT changed();
}

void UploadTargetList::replaceTarget(QTreeWidgetItem *item, const UploadTarget &target)
{
    const QSignalBlocker quiet(m_tree);
    item->setText(targetColumn, target.address());
    // What is told there is about the address before.
    for (int column = targetColumn + 1; column < m_tree->columnCount(); ++column) {
        m_tree->removeItemWidget(item, column);
        item->setText(column, QString());
        item->setIcon(column, QIcon());
        item->setToolTip(column, QString());
    }
}

QTreeWidgetItem *UploadTargetList::currentItem() const
{
    const QList<QTreeWidgetItem *> selected = m_tree->selectedItems();
    return selected.isEmpty() ? nullptr : selected.constFirst();
}

} // namespace Zavo
