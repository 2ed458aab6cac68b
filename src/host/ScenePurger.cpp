#include "ScenePurger.h"

#include <QGraphicsScene>

namespace Zavo {

void ScenePurger::purge(QGraphicsScene *scene)
{
    if (scene)
        scene->deleteLater();
}

void ScenePurger::purge(QList<QGraphicsScene *> sceneList)
{
    for (QGraphicsScene *scene : qAsConst(sceneList))
        purge(scene);
}

} // namespace Zavo
