#include "BandText.h"
#include "DragGesture.h"
#include "SceneMouse.h"
#include "SignalLog.h"
#include "TemporaryDataFolder.h"
#include "ZvEditorCommon.h"

#include <QGraphicsLineItem>
#include <QLabel>
#include <QtTest>

using namespace Zavo;
using ZavoTest::at;
using ZavoTest::band;
using ZavoTest::disorderOf;
using ZavoTest::DragGesture;
using ZavoTest::SignalLog;
using ZavoTest::TemporaryDataFolder;
using ZavoTest::textOf;
using ZavoTest::TimeTableFixture;
using ZavoTest::yOf;

namespace {

constexpr double onStrip = 180.0; // scene x

const char *const tooLate = "There is not enough unallocated time in order to assign stage. The "
                            "start time must be earlier than 23:59:55.";
const char *const occupied = "You can not reassigned to the allocated time.";
const char *const tooNarrow = "There is not enough unallocated time in order to assign stages. "
                              "Unassigned time of 5 seconds or more per one stage is required.";

QStringList names(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

} // namespace

/// Stages dragged with real events over a shown time table, from a data folder of its own.
class tst_StageDrop : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TemporaryDataFolder> m_folder;
    std::unique_ptr<TimeTableFixture> m_table;
    std::unique_ptr<SignalLog> m_log;

    ZvTimeTableTimeZoneItem *strip() const { return m_table->strip(); }
    const QGraphicsLineItem *dropLine() const
    {
        return ZavoTest::childrenOf<QGraphicsLineItem>(strip()).first();
    }
    std::unique_ptr<QMimeData> stages(const QStringList &stageNames) const
    {
        QStringList paths;
        for (const QString &name : stageNames)
            paths.append(m_folder->writeStage(name));
        return DragGesture::filesMimeData(paths);
    }
    bool drop(const char *stageNames, double y) const
    {
        m_table->scrollTo(y);
        DragGesture drag(stages(names(stageNames)));
        return drag.enter(m_table->view(), QPointF(onStrip, y)) && drag.drop();
    }
    void verifyRefused(const QTime &start, int count, const char *message);

private Q_SLOTS:
    void init();
    void cleanup();

    void oneStageGetsAnHour();
    void threeStagesAreSelectedTogether();
    void threeStagesShareTheGap();
    void threeStagesInTwelveSeconds();
    void everyWrappingStageEndsWithTheDay();
    void timeComesFromTheExactHeight();
    void refusals();
    void refusedDropIsAcceptedAndChangesNothing();
    void dropBesideABand();
    void insertOfNothing();

    void enterKeepsTheStageNames();
    void enterOutsideTheStripIsRefused();
    void strangersAreRefused_data();
    void strangersAreRefused();
    void onlyFilesOfTheStageFolderCount();
    void stagesWithOddNames();
    void withoutUrisNothingIsTaken();
    void dropWithoutKeptNames_data();
    void dropWithoutKeptNames();
    void dropLineFollowsTheCursor();
    void leaveHidesTheDropLine();
    void timeIsReportedAtEveryMove();
    void dropAfterARightClickOnABand();
    void noticeOfAMissingScheduleTakesNothing();
};

void tst_StageDrop::init()
{
    m_folder = std::make_unique<TemporaryDataFolder>();
    m_table = std::make_unique<TimeTableFixture>();
    m_log = std::make_unique<SignalLog>();
    m_log->watch(strip(), SIGNAL(requestDisableSelectionChanged(bool)), "disable");
    m_log->watch(strip(), SIGNAL(requestSelectionChanged()), "look");
    m_log->watch(strip(), SIGNAL(timeItemCountChanged(int)), "count");
    m_log->watch(strip(), SIGNAL(timeItemInserted(QList<ZvTime>)), "inserted");
    m_log->watch(strip(), SIGNAL(criticalErrorOccured(QString)), "critical");
    m_log->watch(strip(), SIGNAL(warningErrorOccured(QString)), "warning");
}

void tst_StageDrop::cleanup()
{
    m_log.reset();
    m_table.reset();
    m_folder.reset();
}

void tst_StageDrop::oneStageGetsAnHour()
{
    QVERIFY(drop("lobby.xml", yOf("08:00:00")));
    QCOMPARE(m_table->texts(), QStringList{textOf(band("08:00:00", "09:00:00", "lobby.xml"))});
    QVERIFY(m_table->item(0)->isSelected());
    QCOMPARE(m_log->names(), names("disable count disable look inserted"));
    const auto inserted = m_log->arguments(4).first().value<QList<ZvTime>>();
    QCOMPARE(textOf(inserted), m_table->texts());
}

void tst_StageDrop::threeStagesAreSelectedTogether()
{
    QVERIFY(drop("a.xml b.zstg.xml c.xml", yOf("08:00:00")));
    QCOMPARE(m_table->texts(), textOf({band("08:00:00", "09:00:00", "a.xml"),
                                       band("09:00:00", "10:00:00", "b.zstg.xml"),
                                       band("10:00:00", "11:00:00", "c.xml")}));
    QCOMPARE(strip()->selectedTimeItemCount(), 3);
    QCOMPARE(m_table->scene()->selectedTimeItems(), strip()->timeItems());
    QCOMPARE(m_log->names(), names("disable count count count disable look inserted"));
    QCOMPARE(disorderOf(strip()), QString());
}

void tst_StageDrop::threeStagesShareTheGap()
{
    QVERIFY(m_table->fill({band("09:30:00", "10:00:00", "there.xml")}));
    QVERIFY(drop("a.xml b.xml c.xml", yOf("08:00:00")));
    QCOMPARE(strip()->times(), QList<ZvTime>({band("08:00:00", "08:30:00", "a.xml"),
                                              band("08:30:00", "09:00:00", "b.xml"),
                                              band("09:00:00", "09:30:00", "c.xml"),
                                              band("09:30:00", "10:00:00", "there.xml")}));
    QVERIFY(!m_table->item(3)->isSelected());
}

void tst_StageDrop::threeStagesInTwelveSeconds()
{
    QVERIFY(m_table->fill({band("08:00:12", "10:00:00", "there.xml")}));
    const QList<ZvTime> made = strip()->insertStages(at("08:00:00"), names("a.xml b.xml c.xml"));
    QCOMPARE(made, QList<ZvTime>({band("08:00:00", "08:00:04", "a.xml"),
                                  band("08:00:04", "08:00:12", "b.xml"),
                                  band("08:00:12", "08:00:12", "c.xml")}));
    QCOMPARE(m_table->count(), 4);
    QCOMPARE(m_table->item(2)->itemHeight(), 0.0);
    QCOMPARE(m_table->item(2)->startTime(), m_table->item(2)->endTime());
    QCOMPARE(disorderOf(strip()), QString());
    // The same records find their bands again, the empty one too.
    strip()->removeTimeItems(made);
    QCOMPARE(strip()->times(), QList<ZvTime>{band("08:00:12", "10:00:00", "there.xml")});
    QVERIFY(strip()->insertTimeItems(made));
    QCOMPARE(strip()->times().mid(0, 3), made);
}

void tst_StageDrop::everyWrappingStageEndsWithTheDay()
{
    const QList<ZvTime> made = strip()->insertStages(at("23:59:48"), names("a.xml b.xml c.xml"));
    QCOMPARE(made.size(), 3);
    QCOMPARE(m_table->count(), 3);
    for (int i = 0; i < 3; ++i) {
        QVERIFY(m_table->item(i)->itemHeight() >= 0.0);
        QVERIFY(m_table->item(i)->startTime() <= m_table->item(i)->endTime());
        QVERIFY(m_table->item(i)->y() + m_table->item(i)->itemHeight() <= 1450.0);
        QCOMPARE(m_table->item(i)->timeInfo(), made.at(i));
    }
    strip()->removeTimeItems(made);
    QCOMPARE(m_table->count(), 0);
}

void tst_StageDrop::timeComesFromTheExactHeight()
{
    m_table->setScale(60.0);
    const double y = yOf("23:59:54");
    m_table->scrollTo(y);
    DragGesture drag(stages(names("last.xml")));
    QVERIFY(drag.enter(m_table->view(), QPointF(onStrip, y)));
    QVERIFY(drag.drop());
    // What the pixel under the cursor means, in milliseconds and not rounded to a second.
    const QPoint pixel = m_table->view()->mapFromScene(QPointF(onStrip, y));
    const double pixelY = m_table->view()->mapToScene(pixel).y();
    const QTime start = QTime(0, 0).addMSecs(static_cast<int>((pixelY - 10.0) * 60000.0));
    QVERIFY(qAbs(start.msecsTo(at("23:59:54"))) <= 500);
    const auto inserted = m_log->arguments(4).first().value<QList<ZvTime>>();
    QCOMPARE(textOf(inserted),
             QStringList{textOf(ZvTime(start, at("24:00:00"), QStringLiteral("last.xml")))});
    QCOMPARE(m_table->item(0)->y() + m_table->item(0)->itemHeight(), 1450.0);
    QCOMPARE(m_table->item(0)->endTime(), at("23:59:59.999"));
}

void tst_StageDrop::verifyRefused(const QTime &start, int count, const char *message)
{
    const QStringList before = m_table->texts();
    m_log->clear();
    const QList<ZvTime> made =
        strip()->insertStages(start, QStringList(names("a.xml b.xml c.xml").mid(0, count)));
    QVERIFY(made.isEmpty());
    QCOMPARE(m_log->names(), QStringList{QStringLiteral("warning")});
    QCOMPARE(m_log->arguments(0), QVariantList{QString::fromLatin1(message)});
    QCOMPARE(m_table->texts(), before);
}

void tst_StageDrop::refusals()
{
    verifyRefused(at("23:59:55"), 1, tooLate);
    verifyRefused(at("23:59:59.999"), 3, tooLate);
    QVERIFY(m_table->fill({band("08:00:00", "09:00:00"), band("23:00:00", "24:00:00")}));
    verifyRefused(at("23:59:55"), 1, tooLate);
    verifyRefused(at("08:30:00"), 1, occupied);
    verifyRefused(at("08:00:00.001"), 1, occupied);
    verifyRefused(at("23:59:54"), 1, occupied);
    verifyRefused(at("08:00:00"), 1, tooNarrow);
    verifyRefused(at("23:00:00"), 1, tooNarrow);
    verifyRefused(at("07:59:59.900"), 1, tooNarrow);
    verifyRefused(at("07:59:59.500"), 3, tooNarrow);
    m_log->clear();
    QCOMPARE(strip()->insertStages(at("07:59:59"), names("a.xml")).size(), 1);
    QCOMPARE(m_log->count(QStringLiteral("warning")), 0);
}

void tst_StageDrop::refusedDropIsAcceptedAndChangesNothing()
{
    QVERIFY(m_table->fill({band("08:00:00", "09:00:00")}));
    m_table->select({0});
    m_log->clear();
    QVERIFY(drop("a.xml", yOf("08:30:00")));
    QCOMPARE(m_log->names(), QStringList{QStringLiteral("warning")});
    QCOMPARE(m_log->arguments(0), QVariantList{QString::fromLatin1(occupied)});
    QCOMPARE(m_table->count(), 1);
    QVERIFY(m_table->item(0)->isSelected());
    QVERIFY(!dropLine()->isVisible());
}

void tst_StageDrop::dropBesideABand()
{
    QVERIFY(m_table->fill({band("08:00:00", "09:00:00", "A"), band("10:00:03", "11:00:00", "B")}));
    m_log->clear();
    QVERIFY(drop("at-start.xml", yOf("08:00:00")));
    QCOMPARE(m_log->arguments(0), QVariantList{QString::fromLatin1(tooNarrow)});
    QVERIFY(drop("at-end.xml", yOf("09:00:00")));
    // Three seconds would be left, so the band takes them.
    QCOMPARE(m_table->count(), 3);
    QCOMPARE(m_table->item(1)->timeInfo(), band("09:00:00", "10:00:03", "at-end.xml"));
}

void tst_StageDrop::insertOfNothing()
{
    QVERIFY(strip()->insertStages(at("08:00:00"), {}).isEmpty());
    QVERIFY(m_log->names().isEmpty());
}

void tst_StageDrop::enterKeepsTheStageNames()
{
    m_table->scrollTo(400.0);
    DragGesture drag(stages(names("a.xml sub/b.xml")));
    QVERIFY(!drag.mimeData()->hasFormat(ZvEditorCommon::MIME_TYPE_STAGE_NAME));
    QVERIFY(drag.enter(m_table->view(), QPointF(onStrip, 400.0)));
    QCOMPARE(drag.mimeData()->data(ZvEditorCommon::MIME_TYPE_STAGE_NAME),
             QByteArray("a.xml%0D%0Asub%2Fb.xml%0D%0A"));
    QVERIFY(drag.drop());
    QCOMPARE(m_table->item(1)->timeInfo().stageName(), QStringLiteral("sub/b.xml"));
}

void tst_StageDrop::enterOutsideTheStripIsRefused()
{
    m_table->scrollTo(400.0);
    for (double x : {30.0, 55.0, 305.0, 325.0}) {
        DragGesture drag(stages(names("a.xml")));
        QVERIFY(!drag.enter(m_table->view(), QPointF(x, 400.0)));
        QVERIFY(!drag.mimeData()->hasFormat(ZvEditorCommon::MIME_TYPE_STAGE_NAME));
        QVERIFY(!drag.drop());
        // The same drag is taken once it gets to the strip.
        QVERIFY(drag.enter(m_table->view(), QPointF(x, 400.0)) ||
                drag.move(QPointF(onStrip, 400.0)));
        QVERIFY(!drag.move(QPointF(x, 400.0)));
        QVERIFY(!dropLine()->isVisible());
    }
    m_table->scrollTo(0.0);
    DragGesture drag(stages(names("a.xml")));
    QVERIFY(!drag.enter(m_table->view(), QPointF(onStrip, 7.0)));
    QVERIFY(drag.move(QPointF(onStrip, 10.0)));
    QCOMPARE(m_table->count(), 0);
}

void tst_StageDrop::strangersAreRefused_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("other suffix") << QStringLiteral("stage/a.png");
    QTest::newRow("suffix in other case") << QStringLiteral("stage/a.XML");
    QTest::newRow("no suffix") << QStringLiteral("stage/xml");
    QTest::newRow("another folder") << QStringLiteral("channel/a.xml");
    QTest::newRow("a folder that begins alike") << QStringLiteral("stage2/a.xml");
}

void tst_StageDrop::strangersAreRefused()
{
    QFETCH(QString, file);
    m_folder->makeFolder(QStringLiteral("stage"));
    DragGesture drag(DragGesture::filesMimeData({m_folder->write(file, "<stage/>")}));
    m_table->scrollTo(400.0);
    QVERIFY(!drag.enter(m_table->view(), QPointF(onStrip, 400.0)));
    QVERIFY(!drag.mimeData()->hasFormat(ZvEditorCommon::MIME_TYPE_STAGE_NAME));
    QVERIFY(!drag.move(QPointF(onStrip, 410.0)));
    QVERIFY(!drag.drop());
    QCOMPARE(m_table->count(), 0);
    QVERIFY(m_log->names().isEmpty());
}

void tst_StageDrop::onlyFilesOfTheStageFolderCount()
{
    const QStringList paths{m_folder->write(QStringLiteral("a.xml"), "<stage/>"),
                            m_folder->writeStage(QStringLiteral("b.xml")),
                            m_folder->write(QStringLiteral("stage/c.txt"), "text")};
    DragGesture drag(DragGesture::filesMimeData(paths));
    m_table->scrollTo(yOf("08:00:00"));
    QVERIFY(drag.enter(m_table->view(), QPointF(onStrip, yOf("08:00:00"))));
    QVERIFY(drag.drop());
    QCOMPARE(m_table->texts(), QStringList{textOf(band("08:00:00", "09:00:00", "b.xml"))});
}

void tst_StageDrop::stagesWithOddNames()
{
    const QStringList odd{QStringLiteral("a b.xml"), QString::fromUtf8("映画館/ロビー.xml"),
                          QString::fromUtf8("Größe.xml")};
    for (const QString &name : odd) {
        QVERIFY(m_table->fill({}));
        DragGesture drag(stages({name}));
        m_table->scrollTo(400.0);
        QVERIFY2(drag.enter(m_table->view(), QPointF(onStrip, 400.0)), qPrintable(name));
        QVERIFY(drag.drop());
        QCOMPARE(m_table->item(0)->timeInfo().stageName(), name);
    }
}

void tst_StageDrop::withoutUrisNothingIsTaken()
{
    auto mimeData = std::make_unique<QMimeData>();
    mimeData->setData(ZvEditorCommon::MIME_TYPE_STAGE_NAME, "a.xml%0D%0A");
    mimeData->setText(QStringLiteral("a.xml"));
    DragGesture drag(std::move(mimeData));
    m_table->scrollTo(400.0);
    QVERIFY(!drag.enter(m_table->view(), QPointF(onStrip, 400.0)));
    QVERIFY(!drag.drop());
    QCOMPARE(m_table->count(), 0);
}

void tst_StageDrop::dropWithoutKeptNames_data()
{
    QTest::addColumn<QByteArray>("kept");
    QTest::newRow("format is gone") << QByteArray();
    QTest::newRow("only line breaks") << QByteArray("%0D%0A%0D%0A");
}

void tst_StageDrop::dropWithoutKeptNames()
{
    QFETCH(QByteArray, kept);
    DragGesture drag(stages(names("a.xml")));
    m_table->scrollTo(400.0);
    QVERIFY(drag.enter(m_table->view(), QPointF(onStrip, 400.0)));
    drag.mimeData()->removeFormat(ZvEditorCommon::MIME_TYPE_STAGE_NAME);
    if (!kept.isEmpty())
        drag.mimeData()->setData(ZvEditorCommon::MIME_TYPE_STAGE_NAME, kept);
    QVERIFY(dropLine()->isVisible());
    QVERIFY(!drag.drop());
    QVERIFY(!dropLine()->isVisible());
    QCOMPARE(m_table->count(), 0);
    QVERIFY(m_log->names().isEmpty());
}

void tst_StageDrop::dropLineFollowsTheCursor()
{
    m_table->scrollTo(400.0);
    DragGesture drag(stages(names("a.xml")));
    QVERIFY(drag.enter(m_table->view(), QPointF(onStrip, 400.0)));
    QVERIFY(dropLine()->isVisible());
    QCOMPARE(dropLine()->line(), QLineF(10.0, 400.0, 250.0, 400.0));
    QVERIFY(drag.move(QPointF(70.0, 432.0)));
    QCOMPARE(dropLine()->line(), QLineF(10.0, 432.0, 250.0, 432.0));
    QVERIFY(!drag.move(QPointF(55.0, 432.0)));
    QVERIFY(!dropLine()->isVisible());
    QVERIFY(drag.move(QPointF(70.0, 440.0)));
    QVERIFY(dropLine()->isVisible());
    QVERIFY(drag.drop());
    QVERIFY(!dropLine()->isVisible());
}

void tst_StageDrop::leaveHidesTheDropLine()
{
    m_table->scrollTo(400.0);
    DragGesture drag(stages(names("a.xml")));
    QVERIFY(drag.enter(m_table->view(), QPointF(onStrip, 400.0)));
    QVERIFY(dropLine()->isVisible());
    drag.leave();
    QVERIFY(!dropLine()->isVisible());

    QVERIFY(drag.enter(m_table->view(), QPointF(onStrip, 400.0)));
    QVERIFY(!drag.move(QPointF(20.0, 400.0)));
    QVERIFY(!dropLine()->isVisible());
    QCOMPARE(m_table->count(), 0);
}

void tst_StageDrop::timeIsReportedAtEveryMove()
{
    m_table->scrollTo(0.0);
    m_log->watch(strip(), SIGNAL(timeStringChanged(QString)), "time");
    DragGesture drag(stages(names("a.xml")));
    QVERIFY(drag.enter(m_table->view(), QPointF(onStrip, 70.0)));
    QVERIFY(drag.move(QPointF(onStrip, 70.0)));
    QVERIFY(drag.move(QPointF(onStrip, 100.0)));
    QVERIFY(!drag.move(QPointF(55.0, 101.0)));
    QVERIFY(!drag.move(QPointF(onStrip, 5.0)));
    QStringList times;
    for (int i = 0; i < m_log->names().size(); ++i)
        times.append(m_log->arguments(i).first().toString());
    QCOMPARE(times, names("01:00:00 01:00:00 01:30:00 01:31:00 --:--:--"));

    m_table->scrollTo(1500.0);
    m_log->clear();
    QVERIFY(drag.enter(m_table->view(), QPointF(onStrip, 1450.0)));
    QCOMPARE(m_log->arguments(0), QVariantList{QStringLiteral("24:00:00")});
    QVERIFY(drag.drop());
    QCOMPARE(m_log->names().last(), QStringLiteral("warning"));
}

void tst_StageDrop::dropAfterARightClickOnABand()
{
    QVERIFY(m_table->fill({band("08:00:00", "09:00:00")}));
    m_table->scrollTo(yOf("08:30:00"));
    ZavoTest::SceneMouse mouse(m_table->view());
    mouse.click(QPointF(onStrip, yOf("08:30:00")), Qt::RightButton);
    QVERIFY(drop("a.xml", yOf("09:00:00")));
    QCOMPARE(m_table->count(), 2);
}

// What came onto the table of a schedule that is not there would be gone with the next switch.
void tst_StageDrop::noticeOfAMissingScheduleTakesNothing()
{
    m_table->view()->setNoScheduleLabelVisible(true);
    auto *notice = m_table->view()->findChild<QLabel *>();
    QVERIFY(notice && notice->isVisible());
    m_table->scrollTo(yOf("08:00:00"));
    const QPoint place =
        notice->mapFrom(m_table->view(), m_table->view()->mapFromScene(onStrip, yOf("08:00:00")));
    DragGesture drag(stages({QStringLiteral("a.xml")}));
    QVERIFY(!drag.enter(notice, place));
    QCOMPARE(m_table->view()->childAt(notice->mapTo(m_table->view(), place)), notice);
    QCOMPARE(m_table->count(), 0);

    m_table->view()->setNoScheduleLabelVisible(false);
    QVERIFY(drop("a.xml", yOf("08:00:00")));
    QCOMPARE(m_table->count(), 1);
}

QTEST_MAIN(tst_StageDrop)
#include "tst_stagedrop.moc"
