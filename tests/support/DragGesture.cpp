#include "DragGesture.h"

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QGraphicsView>
#include <QUrl>

namespace ZavoTest {

DragGesture::DragGesture(std::unique_ptr<QMimeData> mimeData, Qt::DropActions possibleActions,
                         Qt::KeyboardModifiers modifiers)
    : m_mimeData(std::move(mimeData))
    , m_possibleActions(possibleActions)
    , m_modifiers(modifiers)
{
}

DragGesture::~DragGesture()
{
    leave();
}

std::unique_ptr<QMimeData> DragGesture::filesMimeData(const QStringList &filePaths)
{
    QList<QUrl> urls;
    for (const QString &filePath : filePaths)
        urls.append(QUrl::fromLocalFile(filePath));
    auto mimeData = std::make_unique<QMimeData>();
    mimeData->setUrls(urls);
    return mimeData;
}

QMimeData *DragGesture::mimeData() const
{
    return m_mimeData.get();
}

Qt::DropAction DragGesture::dropAction() const
{
    return m_dropAction;
}

bool DragGesture::enter(QWidget *target, const QPoint &position)
{
    leave();
    m_target = target;
    m_position = position;
    QDragEnterEvent event(position, m_possibleActions, m_mimeData.get(), Qt::LeftButton,
                          m_modifiers);
    event.ignore();
    QCoreApplication::sendEvent(target, &event);
    m_entered = take(event);
    // The platform follows every accepted enter event with a move to the same place.
    return m_entered && sendMove();
}

bool DragGesture::enter(QGraphicsView *view, const QPointF &scenePosition)
{
    const bool accepted = enter(view->viewport(), view->mapFromScene(scenePosition));
    m_view = view;
    return accepted;
}

bool DragGesture::move(const QPoint &position)
{
    m_position = position;
    return m_entered && sendMove();
}

bool DragGesture::move(const QPointF &scenePosition)
{
    return m_view && move(m_view->mapFromScene(scenePosition));
}

bool DragGesture::drop()
{
    if (!m_entered || !m_target)
        return false;
    if (!m_accepted) {
        leave();
        return false;
    }
    m_entered = false;
    QDropEvent event(m_position, m_possibleActions, m_mimeData.get(), Qt::LeftButton, m_modifiers);
    event.ignore();
    QCoreApplication::sendEvent(m_target, &event);
    return take(event);
}

void DragGesture::leave()
{
    if (!m_entered || !m_target)
        return;
    m_entered = false;
    QDragLeaveEvent event;
    QCoreApplication::sendEvent(m_target, &event);
}

bool DragGesture::sendMove()
{
    if (!m_target)
        return false;
    QDragMoveEvent event(m_position, m_possibleActions, m_mimeData.get(), Qt::LeftButton,
                         m_modifiers);
    event.setDropAction(m_dropAction);
    // A target that only looks at enter events keeps what it said there.
    event.setAccepted(m_accepted);
    QCoreApplication::sendEvent(m_target, &event);
    return take(event);
}

bool DragGesture::take(const QDropEvent &event)
{
    m_accepted = event.isAccepted();
    m_dropAction = m_accepted ? event.dropAction() : Qt::IgnoreAction;
    return m_accepted;
}

} // namespace ZavoTest
