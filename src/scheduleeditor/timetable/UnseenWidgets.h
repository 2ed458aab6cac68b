#pragma once

#include <QObject>

class QWidget;

namespace Zavo {

/// Keeps a page and its children from being styled while nobody sees them. Every new widget asks
/// the event loop for it; of the many tabs of a window few are ever looked at, and a widget that is
/// shown is styled at the latest then.
///
/// Ends with its life.
class UnseenWidgets final : public QObject
{
    Q_OBJECT

public:
    /// For @p page and the children that it has by now.
    explicit UnseenWidgets(QWidget *page);

    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace Zavo
