#include "ScenePurger.h"

#include <QGraphicsScene>

namespace Zavo {

void ScenePurger::purge(QGraphicsScene *scene)
{
    if (scene)
        scene->deleteLater();
}

void ScenePurger::purge(const QList<QGraphicsScene *> &sceneList)
{
    for (QGraphicsScene *scene : sceneList)
        purge(scene);
}

} // namespace Zavo
