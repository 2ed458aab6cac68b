#pragma once

#include <QObject>

class QWidget;

namespace Zavo {

/// Keeps the children of a page from being styled while nobody sees them. Every new widget asks the
/// event loop for it; of the many tabs of a window few are ever looked at, and a widget that is
/// shown is styled at the latest then.
///
/// Ends with its life.
class UnseenWidgets final : public QObject
{
    Q_OBJECT

public:
    /// For the children that @p page has by now.
    explicit UnseenWidgets(QWidget *page);

    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace Zavo
