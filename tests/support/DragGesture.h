#pragma once

#include <QMimeData>
#include <QPoint>
#include <QPointF>
#include <QPointer>
#include <Qt>

#include <memory>

class QDropEvent;
class QGraphicsView;
class QWidget;

namespace ZavoTest {

/// One drag over widgets, sent as the events that the platform sends: enter, move, then leave or
/// drop. A widget that does not take the enter event gets neither moves nor a drop.
///
///     DragGesture drag(DragGesture::filesMimeData({path}));
///     QVERIFY(drag.enter(view, scenePos));
///     QVERIFY(drag.drop());
class DragGesture final
{
    Q_DISABLE_COPY(DragGesture)

public:
    /// Takes @p mimeData. @p possibleActions are what the source of the drag allows.
    explicit DragGesture(std::unique_ptr<QMimeData> mimeData,
                         Qt::DropActions possibleActions = Qt::CopyAction,
                         Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    ~DragGesture();

    /// A "text/uri-list" of local files, as a file list gives it.
    static std::unique_ptr<QMimeData> filesMimeData(const QStringList &filePaths);

    /// What is dragged; also what the target has added to it.
    QMimeData *mimeData() const;

    /// The action that the last accepted event chose; Qt::IgnoreAction if none was accepted.
    Qt::DropAction dropAction() const;

    /// True if the target takes the drag at @p position, which is in its own coordinates.
    bool enter(QWidget *target, const QPoint &position);
    bool enter(QGraphicsView *view, const QPointF &scenePosition);

    /// True if the target would take a drop there.
    bool move(const QPoint &position);
    bool move(const QPointF &scenePosition);

    /// Drops at the position of the last enter or move; true if the target took it.
    bool drop();

    void leave();

private:
    bool sendMove();
    bool take(const QDropEvent &event);

    std::unique_ptr<QMimeData> m_mimeData;
    Qt::DropActions m_possibleActions;
    Qt::KeyboardModifiers m_modifiers;
    QPointer<QWidget> m_target;
    QPointer<QGraphicsView> m_view;
    QPoint m_position;
    Qt::DropAction m_dropAction = Qt::IgnoreAction;
    bool m_entered = false;
    bool m_accepted = false;
};

} // namespace ZavoTest
