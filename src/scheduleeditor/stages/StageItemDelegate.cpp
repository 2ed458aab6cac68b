#include "stages/StageItemDelegate.h"

#include <QWidget>

namespace Zavo {

namespace {

constexpr int mostNamesMeasured = 100000;

const QStyle *styleOfItem(const QStyleOptionViewItem &option)
{
    return option.widget ? option.widget->style() : nullptr;
}

} // namespace

StageItemDelegate::StageItemDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
}

QSize StageItemDelegate::sizeHint(const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const
{
    const QSize size = unwrappedSize(option, index);
    // Only a name that does not fit into the list has another size in a narrower one.
    return size.width() <= option.rect.width() ? size
                                               : QStyledItemDelegate::sizeHint(option, index);
}

QSize StageItemDelegate::unwrappedSize(const QStyleOptionViewItem &option,
                                       const QModelIndex &index) const
{
    const bool isSame = m_font == option.font && m_iconSize == option.decorationSize &&
                        m_style == styleOfItem(option) && m_sizes.size() < mostNamesMeasured;
    if (!isSame) {
        m_sizes.clear();
        m_font = option.font;
        m_iconSize = option.decorationSize;
        m_style = styleOfItem(option);
    }
    const QString name = index.data().toString();
    const auto known = m_sizes.constFind(name);
    if (known != m_sizes.constEnd())
        return *known;
    QStyleOptionViewItem wide = option;
    wide.rect.setWidth(QWIDGETSIZE_MAX);
    const QSize size = QStyledItemDelegate::sizeHint(wide, index);
    m_sizes.insert(name, size);
    return size;
}

} // namespace Zavo
