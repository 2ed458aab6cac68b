#pragma once

#include "ZvTime.h"
#include "timetable/TimeAxis.h"
#include "timetable/ZvTimeTableBaseItem.h"
#include "timetable/ZvTimeTableScene.h"
#include "timetable/ZvTimeTableTimeItem.h"
#include "timetable/ZvTimeTableTimeItemLabel.h"
#include "timetable/ZvTimeTableTimeItemResizeHandle.h"
#include "timetable/ZvTimeTableTimeLabelItem.h"
#include "timetable/ZvTimeTableTimeZoneItem.h"
#include "timetable/ZvTimeTableView.h"

#include <QCoreApplication>
#include <QGraphicsRectItem>
#include <QGraphicsTextItem>
#include <QList>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <memory>

namespace ZavoTest {

/// The scales of the time table, in screen pixels a minute.
inline const QList<double> timeTableScales{0.25, 0.5, 1.0, 2.0, 3.0, 6.0, 10.0, 15.0, 30.0, 60.0};

/// A band from @p start to @p end, both "hh:mm:ss" with or without ".zzz"; "24:00:00" is the end of
/// the day.
inline Zavo::ZvTime band(const QString &start, const QString &end,
                         const QString &stageName = QStringLiteral("a.xml"))
{
    const auto timeOf = [](const QString &text) {
        if (text == QLatin1String("24:00:00"))
            return Zavo::TimeAxis::endOfDay();
        const bool hasMilliseconds = text.contains(QLatin1Char('.'));
        return QTime::fromString(text, hasMilliseconds ? QStringLiteral("hh:mm:ss.zzz")
                                                       : QStringLiteral("hh:mm:ss"));
    };
    return {timeOf(start), timeOf(end), stageName};
}

/// y of @p time, an "hh:mm:ss", in the scene and in the items below it.
inline double yOf(const QString &time)
{
    return Zavo::TimeAxis::dayTop +
           Zavo::TimeAxis::unitsOf(QTime::fromString(time, QStringLiteral("hh:mm:ss")));
}

/// "start-end stage" of a record with all its milliseconds, for comparisons that print.
inline QString textOf(const Zavo::ZvTime &time)
{
    const QString format = QStringLiteral("hh:mm:ss.zzz");
    return QStringLiteral("%1-%2 %3")
        .arg(QLocale::c().toString(time.startTime(), format),
             QLocale::c().toString(time.endTime(), format), time.stageName());
}

inline QStringList textOf(const QList<Zavo::ZvTime> &times)
{
    QStringList texts;
    for (const Zavo::ZvTime &time : times)
        texts.append(textOf(time));
    return texts;
}

/// A shown time table: view, scene, base item and strip, put together as the page of a channel does
/// it, without the page.
class TimeTableFixture final
{
public:
    TimeTableFixture()
        : m_scene(new Zavo::ZvTimeTableScene)
        , m_view(new Zavo::ZvTimeTableView(m_scene.get()))
    {
        auto *base = new Zavo::ZvTimeTableBaseItem;
        auto *strip = new Zavo::ZvTimeTableTimeZoneItem;
        m_scene->setBaseItem(base);
        base->addTimeZone(strip);
        m_scene->setTimeZoneItem(strip);
        QRectF sceneRect = m_scene->sceneRect();
        sceneRect.setHeight(base->itemHeight() + 40.0);
        sceneRect.setTop(-20.0);
        m_view->setSceneRect(sceneRect);
        m_view->setBaseItem(base);
        m_view->setNoScheduleLabelVisible(false);
        QObject::connect(strip, SIGNAL(requestDisableSelectionChanged(bool)), m_scene.get(),
                                       SLOT(setDisableSelectionChanged(bool)),
                                            Qt::DirectConnection);
        QObject::connect(strip, SIGNAL(requestSelectionChanged()), m_scene.get(),
                                       SLOT(onSelectionChanged()));
        m_view->resize(420, 600);
        m_view->show();
        paint();
    }
    Q_DISABLE_COPY(TimeTableFixture)

    Zavo::ZvTimeTableScene *scene() const { return m_scene.get(); }
    Zavo::ZvTimeTableView *view() const { return m_view.get(); }
    Zavo::ZvTimeTableBaseItem *base() const { return m_scene->baseItem(); }
    Zavo::ZvTimeTableTimeZoneItem *strip() const { return m_scene->timeZoneItem(); }
    int count() const { return strip()->timeItemCount(); }
    Zavo::ZvTimeTableTimeItem *item(int index) const { return strip()->timeItems().at(index); }
    QStringList texts() const { return textOf(strip()->times()); }

    /// Empties the strip, fills it and leaves nothing selected. False if a band was refused.
    bool fill(const QList<Zavo::ZvTime> &times)
    {
        m_scene->removeAllTimeItems();
        const bool allPlaced = m_scene->insertTimeItems(times);
        m_scene->clearSelection();
        return allPlaced;
    }

    /// Selects these bands and no others.
    void select(const QList<int> &indices)
    {
        m_scene->clearSelection();
        for (int index : indices)
            item(index)->setSelected(true);
    }

    /// The scale of the scene and of the view, in screen pixels a minute.
    void setScale(double scale)
    {
        m_scene->setVerticalScale(scale);
        m_view->changeScale(scale);
        paint();
    }

    /// Brings @p y to the middle of the view, as far as the scroll bar allows.
    void scrollTo(double y)
    {
        m_view->centerOn(QPointF(0.0, y));
        paint();
    }

    /// Lets the view paint what is due.
    void paint()
    {
        m_view->viewport()->repaint();
        QCoreApplication::processEvents();
    }

private:
    std::unique_ptr<Zavo::ZvTimeTableScene> m_scene;
    std::unique_ptr<Zavo::ZvTimeTableView> m_view;
};

/// The direct children of @p item that are of type T, in the order of their creation.
template<typename T>
QList<T *> childrenOf(const QGraphicsItem *item)
{
    QList<T *> found;
    const QList<QGraphicsItem *> children = item->childItems();
    for (QGraphicsItem *child : children) {
        if (auto *match = dynamic_cast<T *>(child))
            found.append(match);
    }
    return found;
}

inline Zavo::ZvTimeTableTimeItemLabel *stageLabelOf(const Zavo::ZvTimeTableTimeItem *item)
{
    return childrenOf<Zavo::ZvTimeTableTimeItemLabel>(item).value(0);
}

inline Zavo::ZvTimeTableTimeItemLabel *indexLabelOf(const Zavo::ZvTimeTableTimeItem *item)
{
    return childrenOf<Zavo::ZvTimeTableTimeItemLabel>(item).value(1);
}

/// The outer line of the selection mark; the inner one is its only child.
inline QGraphicsRectItem *markOf(const Zavo::ZvTimeTableTimeItem *item)
{
    return childrenOf<QGraphicsRectItem>(item).value(0);
}

inline QGraphicsRectItem *innerMarkOf(const Zavo::ZvTimeTableTimeItem *item)
{
    return childrenOf<QGraphicsRectItem>(markOf(item)).value(0);
}

inline Zavo::ZvTimeTableTimeLabelItem *labelCarrierOf(const Zavo::ZvTimeTableBaseItem *base)
{
    return childrenOf<Zavo::ZvTimeTableTimeLabelItem>(base).value(0);
}

/// The texts of the ruler, from top to bottom. Those out of sight may come from the event loop.
inline QList<QGraphicsTextItem *> rulerTextsOf(const Zavo::ZvTimeTableBaseItem *base)
{
    QList<QGraphicsTextItem *> texts = childrenOf<QGraphicsTextItem>(labelCarrierOf(base));
    std::sort(texts.begin(), texts.end(),
              [](const QGraphicsTextItem *text, const QGraphicsTextItem *other) {
                  return text->y() < other->y();
              });
    return texts;
}

} // namespace ZavoTest
