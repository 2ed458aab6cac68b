#include "workspace/PlainTabStyle.h"

#include <QApplication>
#include <QStyleFactory>
#include <QStyleOptionTab>

namespace Zavo {

PlainTabStyle::PlainTabStyle(QStyle *base)
    : QProxyStyle(base)
{
}

PlainTabStyle *PlainTabStyle::create(QObject *parent)
{
    QStyle *base = QStyleFactory::create(QApplication::style()->objectName());
    if (!base)
        return nullptr;
    auto *style = new PlainTabStyle(base);
    style->setParent(parent);
    return style;
}

void PlainTabStyle::drawItemText(QPainter *painter, const QRect &rect, int flags,
                                 const QPalette &palette, bool enabled, const QString &text,
                                 QPalette::ColorRole textRole) const
{
    const int plainFlags = flags & ~(Qt::TextShowMnemonic | Qt::TextHideMnemonic);
    QProxyStyle::drawItemText(painter, rect, plainFlags, palette, enabled, text, textRole);
}

// The bar measures its titles without the ampersands.
QSize PlainTabStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                      const QSize &size, const QWidget *widget) const
{
    QSize plainSize = size;
    const auto *tab = qstyleoption_cast<const QStyleOptionTab *>(option);
    if (type == CT_TabBarTab && tab && tab->text.contains(QLatin1Char('&'))) {
        const QSize plain = tab->fontMetrics.size(0, tab->text);
        const QSize measured = tab->fontMetrics.size(Qt::TextShowMnemonic, tab->text);
        plainSize.rwidth() += plain.width() - measured.width();
    }
    return QProxyStyle::sizeFromContents(type, option, plainSize, widget);
}

} // namespace Zavo
