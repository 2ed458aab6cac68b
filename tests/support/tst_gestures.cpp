#include "DragGesture.h"
#include "SceneMouse.h"
#include "SignalLog.h"

#include <QDragEnterEvent>
#include <QGraphicsScene>
#include <QGraphicsSceneDragDropEvent>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QWidget>
#include <QtTest>

using ZavoTest::DragGesture;
using ZavoTest::SceneMouse;
using ZavoTest::SignalLog;

namespace {

class DropWidget final : public QWidget
{
public:
    DropWidget()
    {
        setAcceptDrops(true);
        resize(100, 100);
    }

    QStringList events;

protected:
    void dragEnterEvent(QDragEnterEvent *event) override { look("enter", event, 80); }
    void dragMoveEvent(QDragMoveEvent *event) override { look("move", event, 50); }
    void dropEvent(QDropEvent *event) override { look("drop", event, 100); }
    void dragLeaveEvent(QDragLeaveEvent *) override { events.append(QStringLiteral("leave")); }

private:
    void look(const char *name, QDropEvent *event, int lastX)
    {
        events.append(QString::fromLatin1(name));
        event->setAccepted(event->pos().x() <= lastX);
    }
};

class LoggingScene final : public QGraphicsScene
{
public:
    LoggingScene()
        : QGraphicsScene(0, 0, 400, 400)
    {
    }

    QList<QPointF> moves;
    Qt::MouseButtons buttonsOfLastMove = Qt::NoButton;
    QPointF droppedAt;
    int doubleClicks = 0;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override { event->accept(); }
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override
    {
        moves.append(event->scenePos());
        buttonsOfLastMove = event->buttons();
    }
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *) override { ++doubleClicks; }
    void dragEnterEvent(QGraphicsSceneDragDropEvent *event) override { event->accept(); }
    void dragMoveEvent(QGraphicsSceneDragDropEvent *event) override { event->accept(); }
    void dropEvent(QGraphicsSceneDragDropEvent *event) override
    {
        droppedAt = event->scenePos();
        event->accept();
    }
};

} // namespace

class tst_Gestures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dragOverAWidget();
    void dragIsRefused();
    void dragLeavesWhenItEnds();
    void dropOnAScene();
    void mouseHoldsItsButtons();
    void logKeepsOrderOverObjects();
};

void tst_Gestures::dragOverAWidget()
{
    DropWidget widget;
    DragGesture drag(DragGesture::filesMimeData({QStringLiteral("/tmp/a b.xml")}));
    QVERIFY(drag.mimeData()->hasUrls());
    QVERIFY(drag.enter(&widget, {10, 10}));
    QVERIFY(drag.move(QPoint(20, 10)));
    QVERIFY(drag.drop());
    QCOMPARE(drag.dropAction(), Qt::CopyAction);
    const QStringList expected{QStringLiteral("enter"), QStringLiteral("move"),
                               QStringLiteral("move"), QStringLiteral("drop")};
    QCOMPARE(widget.events, expected);
}

void tst_Gestures::dragIsRefused()
{
    DropWidget widget;
    {
        DragGesture drag(DragGesture::filesMimeData({}));
        QVERIFY(!drag.enter(&widget, {90, 10}));
        QVERIFY(!drag.drop());
        QCOMPARE(widget.events, QStringList(QStringLiteral("enter")));
    }
    widget.events.clear();
    DragGesture drag(DragGesture::filesMimeData({}));
    QVERIFY(drag.enter(&widget, {10, 10}));
    QVERIFY(!drag.move(QPoint(70, 10)));
    QVERIFY(!drag.drop());
    QCOMPARE(widget.events.last(), QStringLiteral("leave"));
    QVERIFY(!widget.events.contains(QStringLiteral("drop")));
}

void tst_Gestures::dragLeavesWhenItEnds()
{
    DropWidget widget;
    {
        DragGesture drag(DragGesture::filesMimeData({}));
        QVERIFY(drag.enter(&widget, {10, 10}));
    }
    QCOMPARE(widget.events.last(), QStringLiteral("leave"));
}

void tst_Gestures::dropOnAScene()
{
    LoggingScene scene;
    QGraphicsView view(&scene);
    view.resize(300, 300);
    view.show();
    DragGesture drag(DragGesture::filesMimeData({}));
    QVERIFY(drag.enter(&view, QPointF(150, 150)));
    QVERIFY(drag.move(QPointF(160, 170)));
    QVERIFY(drag.drop());
    QCOMPARE(scene.droppedAt.toPoint(), QPoint(160, 170));
}

void tst_Gestures::mouseHoldsItsButtons()
{
    LoggingScene scene;
    QGraphicsView view(&scene);
    view.resize(300, 300);
    view.show();
    SceneMouse mouse(&view);
    mouse.press({200, 200});
    scene.moves.clear();
    mouse.moveTo({210.5, 220.25});
    QCOMPARE(scene.buttonsOfLastMove, Qt::MouseButtons(Qt::LeftButton));
    QCOMPARE(scene.moves.size(), 1);
    QVERIFY((scene.moves.first() - QPointF(210.5, 220.25)).manhattanLength() < 1.0);
    mouse.release();
    mouse.doubleClick({200, 200});
    QCOMPARE(scene.doubleClicks, 1);
}

void tst_Gestures::logKeepsOrderOverObjects()
{
    QObject first;
    QObject second;
    SignalLog log;
    log.watch(&first, SIGNAL(objectNameChanged(QString)), "first");
    log.watch(&second, SIGNAL(objectNameChanged(QString)));
    second.setObjectName(QStringLiteral("b"));
    first.setObjectName(QStringLiteral("a"));
    const QStringList expected{QStringLiteral("objectNameChanged"), QStringLiteral("first")};
    QCOMPARE(log.names(), expected);
    QCOMPARE(log.arguments(1), QVariantList{QStringLiteral("a")});
    QCOMPARE(log.count(QStringLiteral("first")), 1);
    log.clear();
    QVERIFY(log.names().isEmpty());
    QEXPECT_FAIL("", "no such signal", Continue);
    log.watch(&first, SIGNAL(noSuchSignal()));
}

QTEST_MAIN(tst_Gestures)
#include "tst_gestures.moc"
