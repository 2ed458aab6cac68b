#include "EditorFixture.h"
#include "MessageBoxAnswer.h"
#include "SceneMouse.h"

#include "timetable/ZvTimeTableTimeItem.h"

#include "ZvEditorConfig.h"

#include <QDir>
#include <QGraphicsView>
#include <QLabel>

using namespace Zavo;
using namespace ZavoTest;

namespace {

// The editor on a copy of the example data.
class ExampleHost : public EditorFixture
{
public:
    ExampleHost()
        : EditorFixture(QStringList{})
    {
        data.copyFrom(QStringLiteral(ZAVO_EXAMPLE_DATA));
        // The examples' dates pass, but no test is to find them removed for that.
        data.write(QStringLiteral("config.ini"),
                   "[General]\nDefaultScheduleUsedFirst=true\nRemovingDuration=36500\n");
        ZvEditorConfig::reload();
    }

    // The channels of the files, in the order of their indices.
    QList<ZvChannel> storedChannels() const
    {
        QList<ZvChannel> channels;
        const QDir folder(data.channelFolder());
        const QStringList files = folder.entryList({QStringLiteral("channel?*.xml")}, QDir::Files);
        for (const QString &file : files)
            channels.append(readChannelFile(folder.filePath(file)));
        std::sort(channels.begin(), channels.end(),
                  [](const ZvChannel &a, const ZvChannel &b) { return a.index() < b.index(); });
        return channels;
    }
};

ZvSchedule defaultScheduleOf(const ZvChannel &channel)
{
    const QList<ZvSchedule> &schedules = channel.scheduleList();
    for (const ZvSchedule &schedule : schedules) {
        if (schedule.type() == ZvSchedule::Default)
            return schedule;
    }
    return {};
}

// The first band long enough to be taken by its middle, with more than ten minutes of nothing
// behind it.
int bandBeforeGap(const QList<ZvTime> &times)
{
    constexpr int length = 1200; // seconds
    constexpr int gap = 600;     // seconds
    for (int i = 0; i + 1 < times.size(); ++i) {
        const ZvTime &time = times.at(i);
        if (time.startTime().secsTo(time.endTime()) >= length &&
            time.endTime().secsTo(times.at(i + 1).startTime()) > gap)
            return i;
    }
    return -1;
}

} // namespace

class tst_Startup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyChannelHasItsTab();
    void defaultScheduleIsOnTheTable();
    void lookingChangesNothing();
    void editSaveAndStartAgain();
    void startOnNothing();
};

void tst_Startup::everyChannelHasItsTab()
{
    ExampleHost host;
    const MessageBoxAnswer noBox;
    const QList<ZvChannel> channels = host.storedChannels();
    QVERIFY(channels.size() >= 10);
    QVERIFY(host.start());
    QCOMPARE(host.tabs()->count(), channels.size());
    for (int i = 0; i < channels.size(); ++i) {
        QCOMPARE(host.tabs()->tabText(i), channels.at(i).name());
        QCOMPARE(host.area(i)->channel()->id(), channels.at(i).id());
        QCOMPARE(host.area(i)->channel()->index(), i);
    }
    QCOMPARE(host.tabs()->currentIndex(), 0);
}

void tst_Startup::defaultScheduleIsOnTheTable()
{
    ExampleHost host;
    const MessageBoxAnswer noBox;
    const QList<ZvChannel> channels = host.storedChannels();
    QVERIFY(host.start());
    for (int i = 0; i < channels.size(); ++i) {
        host.tabs()->setCurrentIndex(i);
        const ZvSchedule schedule = defaultScheduleOf(channels.at(i));
        const QList<ZvTime> &times = schedule.timeList();
        QCOMPARE(host.area(i)->currentScheduleInfo(), ZvScheduleBasicInfo(ZvSchedule::Default));
        QVERIFY(host.area(i)->isCurrentScheduleEnabled());
        QCOMPARE(host.area(i)->defaultStageName(), schedule.defaultStage());
        QCOMPARE(host.area(i)->currentTimes(), times);
        const auto labels = host.area(i)->findChildren<QLabel *>();
        const bool titled = std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
            return label->isVisible() && label->text() == QStringLiteral("Schedule of Default");
        });
        QVERIFY(titled);
    }
}

void tst_Startup::lookingChangesNothing()
{
    ExampleHost host;
    QList<QByteArray> before;
    const QStringList files = host.data.names(QStringLiteral("channel"));
    for (const QString &file : files)
        before.append(host.data.read(QStringLiteral("channel/") + file));
    QVERIFY(host.start());
    for (int i = 0; i < host.tabs()->count(); ++i) {
        host.tabs()->setCurrentIndex(i);
        host.main()->switchToDayOfWeekSchedule(Qt::Wednesday);
        host.main()->switchToDateSchedule(QDate(2031, 12, 24));
        host.main()->switchToDefaultSchedule();
    }
    const MessageBoxAnswer noBox;
    host.editor->close();
    QVERIFY(host.data.names(QStringLiteral("channel")) == files);
    for (int i = 0; i < files.size(); ++i)
        QCOMPARE(host.data.read(QStringLiteral("channel/") + files.at(i)), before.at(i));
}

void tst_Startup::editSaveAndStartAgain()
{
    ExampleHost host;
    QVERIFY(host.start());
    int tab = 0;
    while (tab < host.tabs()->count() && bandBeforeGap(host.area(tab)->currentTimes()) < 0)
        host.tabs()->setCurrentIndex(++tab);
    QVERIFY(tab < host.tabs()->count());
    const QList<ZvTime> before = host.area(tab)->currentTimes();
    host.editor->action_selectAll();
    ZvTimeTableTimeItem *band = host.area(tab)->selectedTimeItems().at(bandBeforeGap(before));
    host.editor->action_deselectAll();
    QCoreApplication::processEvents();
    auto *view = host.area(tab)->findChild<QGraphicsView *>();
    view->centerOn(band);
    const QPointF from = band->sceneBoundingRect().center();
    SceneMouse mouse(view);
    mouse.click(from);
    mouse.drag(from, from + QPointF(0.0, 10.0));
    const QList<ZvTime> moved = host.area(tab)->currentTimes();
    QVERIFY(moved != before);
    QTRY_VERIFY(host.action("Action_Undo")->isEnabled());
    host.action("Action_Save_Channel")->trigger();
    {
        const MessageBoxAnswer noBox;
        host.editor->close();
    }
    host.window.reset();
    host.scenes.clear();
    host.makeEditor();
    QVERIFY(host.start());
    host.tabs()->setCurrentIndex(tab);
    QCOMPARE(host.area(tab)->currentTimes(), moved);
    QVERIFY(!host.action("Action_Undo")->isEnabled());
}

void tst_Startup::startOnNothing()
{
    EditorFixture host(QStringList{});
    const MessageBoxAnswer noBox;
    QVERIFY(host.start());
    QCOMPARE(host.tabs()->count(), 10);
    QCOMPARE(host.data.names(QStringLiteral("channel")).size(), 11);
    host.editor->close();
    host.window.reset();
    host.makeEditor();
    QVERIFY(host.start());
    QCOMPARE(host.tabs()->count(), 10);
    host.editor->close();
}

QTEST_MAIN(tst_Startup)
#include "tst_startup.moc"
