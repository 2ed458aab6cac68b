#pragma once

#include <QProxyStyle>

namespace Zavo {

/// The application's style, but for texts that are drawn as they are: an ampersand in a channel's
/// name marks no key.
class PlainTabStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    /// Null if the application's style is none of those that can be made anew.
    static PlainTabStyle *create(QObject *parent);

    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette,
                      bool enabled, const QString &text,
                      QPalette::ColorRole textRole = QPalette::NoRole) const override;

    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override;

private:
    explicit PlainTabStyle(QStyle *base);
};

} // namespace Zavo
