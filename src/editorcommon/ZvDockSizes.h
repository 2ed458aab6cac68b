#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QTimer>
#include <QVector>

class QDockWidget;
class QMainWindow;

namespace Zavo {

/// Gives the docks of one window their sizes: at once to those that are shown, and to the others
/// when they are, since a hidden dock has no size to be changed. A child of its window.
class ZvDockSizes final : public QObject
{
    Q_OBJECT

public:
    /// The one of @p window, made at the first call.
    static ZvDockSizes *of(QMainWindow *window);

    /// Geometry of @p dock as it is shown, or was or will be; behind another tab that of the tab in
    /// front. Null if the dock never had one.
    static QRect shownGeometry(QDockWidget *dock, QMainWindow *window);

    /// @p dock, which must be docked in the window, is to become as large as @p size.
    void want(QDockWidget *dock, const QSize &size);

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /// Gives the shown docks the sizes that they are to have.
    void apply();

private Q_SLOTS:
    /// Somebody else has placed the sender, so that what was wanted for it is out of date.
    void forgetSender();

private:
    struct Wish
    {
        QPointer<QDockWidget> dock;
        QSize size;
    };
    using Wishes = QVector<Wish>;

    explicit ZvDockSizes(QMainWindow *window);

    void forget(QDockWidget *dock);
    Wishes takeShown();
    Wishes along(Qt::Orientation orientation, const Wishes &shown) const;
    void resize(const Wishes &wishes, Qt::Orientation orientation);

    QMainWindow *m_window = nullptr;
    QTimer m_applyTimer;
    Wishes m_wishes;
};

} // namespace Zavo
