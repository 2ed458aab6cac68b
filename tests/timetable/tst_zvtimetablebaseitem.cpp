#include "timetable/ZvTimeTableBaseItem.h"

#include "TimeTableFixture.h"

#include <QtTest>

using namespace Zavo;
using ZavoTest::TimeTableFixture;

class tst_ZvTimeTableBaseItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_table.reset(new TimeTableFixture); }
    void cleanup() { m_table.reset(); }

    void isLaidOutWithOneStrip();

private:
    QScopedPointer<TimeTableFixture> m_table;
};

void tst_ZvTimeTableBaseItem::isLaidOutWithOneStrip()
{
    QCOMPARE(m_table->base()->pos(), QPointF(0.0, 0.0));
    QCOMPARE(m_table->base()->boundingRect(), QRectF(0.0, 0.0, 330.0, 1460.0));
    QCOMPARE(m_table->strip()->sceneBoundingRect(), QRectF(50.0, 0.0, 260.0, 1460.0));
    QCOMPARE(m_table->strip()->mapRectToScene(m_table->strip()->innerRect()),
             QRectF(60.0, 10.0, 240.0, 1440.0));
}

QTEST_MAIN(tst_ZvTimeTableBaseItem)
#include "tst_zvtimetablebaseitem.moc"
