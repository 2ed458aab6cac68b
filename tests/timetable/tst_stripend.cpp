#include "WorkingAreaFixture.h"

#include <QtTest>

#include <ctime>

using namespace Zavo;
using namespace ZavoTest;

namespace {

constexpr int few = 1000;
constexpr int many = 8 * few;
constexpr double mostGrowth = 24.0; // three times that of the bands; what is quadratic takes 64

/// Time of the processor that this thread has taken, in seconds; other programs do not count.
double effort()
{
    constexpr double nanosecond = 1e-9;
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * nanosecond;
}

} // namespace

class tst_StripEnd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void growsAsTheBands();

private:
    static double effortOfTheEnd(int stageCount);
};

// What ends is what a drop of so many stages left: all of them selected, and painted once.
double tst_StripEnd::effortOfTheEnd(int stageCount)
{
    WorkingAreaFixture page({scheduleOf(defaultInfo)});
    page.area()->switchToDefaultSchedule();
    QStringList names;
    names.reserve(stageCount);
    for (int i = 0; i < stageCount; ++i)
        names.append(QStringLiteral("a.xml"));
    page.strip()->insertStages(QTime(0, 0), names);
    WorkingAreaFixture::settle();
    if (page.strip()->timeItemCount() != stageCount)
        return -1.0;

    const double begin = effort();
    // The page goes before the scene that it gave up.
    const QGraphicsScene *scene = page.area()->takeScene();
    page.destroy();
    delete scene;
    return effort() - begin;
}

void tst_StripEnd::growsAsTheBands()
{
    effortOfTheEnd(few); // what is made once
    const double ofFew = effortOfTheEnd(few);
    const double ofMany = effortOfTheEnd(many);
    QVERIFY(ofFew > 0.0);
    QVERIFY2(ofMany < mostGrowth * ofFew,
             qPrintable(QStringLiteral("%1 s for %2 bands, %3 s for %4")
                            .arg(ofFew)
                            .arg(few)
                            .arg(ofMany)
                            .arg(many)));
}

QTEST_MAIN(tst_StripEnd)
#include "tst_stripend.moc"
