#pragma once

#include <QFont>
#include <QHash>
#include <QPointer>
#include <QSize>
#include <QStyle>
#include <QStyledItemDelegate>

namespace Zavo {

/// Items of the stage list, with a memory for their sizes: the list lays out all its items whenever
/// its width or its folder changes, and measuring a text takes far longer than placing it.
class StageItemDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit StageItemDelegate(QObject *parent = nullptr);

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    QSize unwrappedSize(const QStyleOptionViewItem &option, const QModelIndex &index) const;

    // What was measured, and what it was measured with.
    mutable QHash<QString, QSize> m_sizes;
    mutable QFont m_font;
    mutable QSize m_iconSize;
    mutable QPointer<const QStyle> m_style;
};

} // namespace Zavo
