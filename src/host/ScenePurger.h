#pragma once

#include <QList>
#include <QObject>

class QGraphicsScene;

namespace Zavo {

/// Deletes the graphics scenes that the editor gives up, after the views that may still paint them.
class ScenePurger final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

public Q_SLOTS:
    /// Both take the scenes and delete them from the event loop, which deletes the widgets that the
    /// editor gave up before them.
    void purge(QGraphicsScene *scene);
    void purge(const QList<QGraphicsScene *> &sceneList);
};

} // namespace Zavo
