#pragma once

#include "DragGesture.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDrag>
#include <QMouseEvent>
#include <QtTest>

#include <memory>

namespace ZavoTest {

/// Presses on a row and moves until the view starts a drag of its own; returns that drag, with the
/// data and the actions that the view gave it, to be led over targets. Null if the view starts
/// none. The offscreen platform ends every drag as soon as it has begun, so the events of the way
/// are the gesture's.
inline std::unique_ptr<DragGesture> dragOutOf(QAbstractItemView *view, const QModelIndex &index)
{
    const QPoint start = view->visualRect(index).center();
    QWidget *viewport = view->viewport();
    QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, start);
    // The first move tells the view that a drag is meant, the second that it is far enough.
    for (int moved = 1; moved <= 2; ++moved) {
        const QPoint position = start + QPoint(0, moved * QApplication::startDragDistance());
        QMouseEvent move(QEvent::MouseMove, position, viewport->mapToGlobal(position), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &move);
    }
    QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, start);
    const std::unique_ptr<QDrag> drag(view->findChild<QDrag *>());
    if (!drag)
        return nullptr;
    auto data = std::make_unique<QMimeData>();
    const QStringList formats = drag->mimeData()->formats();
    for (const QString &format : formats)
        data->setData(format, drag->mimeData()->data(format));
    return std::make_unique<DragGesture>(std::move(data), drag->supportedActions());
}

} // namespace ZavoTest
