#include "ScenePurger.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPointer>
#include <QtTest>

using Zavo::ScenePurger;

class tst_ScenePurger : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deletesScenes();
    void deletesAfterTheViews();
};

void tst_ScenePurger::deletesScenes()
{
    ScenePurger purger;
    const QPointer<QGraphicsScene> single(new QGraphicsScene);
    const QPointer<QGraphicsScene> first(new QGraphicsScene);
    const QPointer<QGraphicsScene> second(new QGraphicsScene);
    purger.purge(single);
    purger.purge(QList<QGraphicsScene *>{first, nullptr, second});
    purger.purge(static_cast<QGraphicsScene *>(nullptr));
    QVERIFY(single && first && second);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!single && !first && !second);
}

void tst_ScenePurger::deletesAfterTheViews()
{
    ScenePurger purger;
    auto *const scene = new QGraphicsScene;
    auto *const view = new QGraphicsView(scene);
    QStringList order;
    connect(view, &QObject::destroyed, this, [&order] { order.append(QStringLiteral("view")); });
    connect(scene, &QObject::destroyed, this, [&order] { order.append(QStringLiteral("scene")); });
    view->deleteLater();
    purger.purge(scene);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QStringList expected{QStringLiteral("view"), QStringLiteral("scene")};
    QCOMPARE(order, expected);
}

QTEST_MAIN(tst_ScenePurger)
#include "tst_scenepurger.moc"
