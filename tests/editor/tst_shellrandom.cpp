#include "EditorFixture.h"
#include "SceneMouse.h"

#include "domain/ScheduleText.h"
#include "domain/ZvScheduleBasicInfo.h"
#include "navigation/ZvScheduleListWidget.h"
#include "navigation/ZvScheduleSwitcherWidget.h"
#include "services/ZvScheduleClipboard.h"
#include "workspace/ChannelFolder.h"

#include <QAbstractButton>
#include <QDialog>
#include <QFileInfo>
#include <QGraphicsView>
#include <QMessageBox>
#include <QRandomGenerator>
#include <QUndoGroup>
#include <QUndoStack>

using namespace Zavo;
using namespace ZavoTest;

namespace {

constexpr int MaximumChannelCount = 8;

// Somebody who uses whatever the editor offers, in no order, and answers whatever it asks.
class RandomUser final : public QObject
{
    Q_OBJECT

public:
    RandomUser(EditorFixture *host, quint32 seed)
        : m_host(host)
        , m_random(seed)
    {
        connect(&m_answers, SIGNAL(timeout()), this, SLOT(answer()));
        m_answers.start(1);
    }

    void act()
    {
        using Step = void (RandomUser::*)();
        constexpr Step steps[] = {&RandomUser::addChannel, &RandomUser::deleteChannel,
                                  &RandomUser::rename,     &RandomUser::changeTab,
                                  &RandomUser::moveTab,    &RandomUser::chooseSchedule,
                                  &RandomUser::clickTable, &RandomUser::activate,
                                  &RandomUser::markInList, &RandomUser::fillClipboard};
        if (m_random.bounded(2) == 0)
            (this->*steps[m_random.bounded(int(std::size(steps)))])();
        else
            trigger();
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
    }

    QString lastStep() const { return m_lastStep; }

private Q_SLOTS:
    void answer()
    {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        const auto *box = qobject_cast<QMessageBox *>(dialog);
        if (!box) {
            m_random.bounded(2) == 0 ? dialog->accept() : dialog->reject();
            return;
        }
        const QList<QAbstractButton *> buttons = box->buttons();
        buttons.at(m_random.bounded(buttons.size()))->click();
    }

private:
    void note(const char *step) { m_lastStep = QString::fromUtf8(step); }

    void trigger()
    {
        static const char *const names[] = {"Action_Save_Channel",
                                            "Action_Save_All_Channel",
                                            "Action_Undo",
                                            "Action_Undo",
                                            "Action_Redo",
                                            "Action_Cut",
                                            "Action_Copy",
                                            "Action_Paste",
                                            "Action_Paste",
                                            "Action_Delete",
                                            "Action_Select_All",
                                            "Action_Deselect_All",
                                            "Action_Create_Schedule",
                                            "Action_Delete_Schedule",
                                            "Action_Rename_Channel",
                                            "Action_Change_Channel_Order",
                                            "Action_Show_Channel_Information"};
        const char *name = names[m_random.bounded(int(std::size(names)))];
        give(name);
    }

    // As a menu does, which leaves out what is disabled.
    void give(const char *name)
    {
        note(name);
        if (m_host->action(name)->isEnabled())
            m_host->action(name)->trigger();
    }

    void addChannel()
    {
        if (m_host->tabs()->count() < MaximumChannelCount)
            give("Action_Create_Channel");
    }
    void deleteChannel() { give("Action_Delete_Channel"); }
    void rename()
    {
        note("rename");
        const QStringList names = {QStringLiteral("Hall"), QStringLiteral("a/b"),
                                   QStringLiteral("Foyer"), QStringLiteral("Gate & Lift")};
        m_host->main()->changeChannelNameWithUndo(m_random.bounded(m_host->tabs()->count()),
                                                  names.at(m_random.bounded(names.size())));
    }
    void changeTab()
    {
        note("tab");
        m_host->tabs()->setCurrentIndex(m_random.bounded(m_host->tabs()->count()));
    }
    void moveTab()
    {
        note("move");
        const int count = m_host->tabs()->count();
        const int from = m_host->tabs()->currentIndex();
        if (from < 1)
            return;
        const int to = m_random.bounded(1, count);
        m_host->tabs()->moveTab(from, to);
        m_host->tabs()->onTabMoved(from, to);
    }
    void chooseSchedule()
    {
        note("choose");
        switch (m_random.bounded(3)) {
        case 0:
            m_host->main()->switchToDefaultSchedule();
            break;
        case 1:
            m_host->main()->switchToDayOfWeekSchedule(Qt::DayOfWeek(m_random.bounded(1, 8)));
            break;
        default:
            m_host->main()->switchToDateSchedule(QDate(2031, 5, m_random.bounded(1, 5)));
            break;
        }
    }
    void clickTable()
    {
        note("click");
        auto *view = m_host->main()->currentWorkingArea()->findChild<QGraphicsView *>();
        SceneMouse(view).click(QPointF(180.0, 20.0 + m_random.bounded(1400)));
    }
    void activate()
    {
        note("activate");
        QWidget *const widgets[] = {m_host->main(), m_host->main(),
                                    m_host->window->findChild<ZvScheduleSwitcherWidget *>(),
                                    m_host->window->findChild<ZvScheduleListWidget *>(), nullptr};
        m_host->editor->setActivatedWidget(widgets[m_random.bounded(5)]);
    }
    void markInList()
    {
        note("mark");
        auto *list = m_host->window->findChild<ZvScheduleListWidget *>();
        m_random.bounded(3) == 0 ? list->deselectAllItems() : list->selectAllItems();
    }
    void fillClipboard()
    {
        note("clipboard");
        QList<ZvTime> times;
        for (int i = 0; i < 3; ++i) {
            const QTime start = QTime(0, 0).addSecs(60 * (20 * i + m_random.bounded(10)));
            times.append({start, start.addSecs(600), QStringLiteral("stage.xml")});
        }
        ZvSchedule schedule;
        schedule.setType(ZvSchedule::Default);
        schedule.setTimeList(times);
        if (m_random.bounded(3) == 0)
            ZvScheduleClipboard::writeSchedulesToClipboard({schedule, schedule});
        else
            ZvScheduleClipboard::writeTimesToClipboard(times);
    }

    EditorFixture *m_host;
    QRandomGenerator m_random;
    QTimer m_answers;
    QString m_lastStep;
};

// What must hold after every step, whatever it was; empty if it does.
QString fault(const EditorFixture &host)
{
    const ZvScheduleMainWidget *main = host.main();
    const QUndoGroup *group = main->undoGroup();
    const ZvScheduleWorkingArea *page = main->currentWorkingArea();
    if (!page)
        return QStringLiteral("no page");
    if (group->stacks().size() != host.tabs()->count())
        return QStringLiteral("%1 stacks").arg(group->stacks().size());
    if (group->activeStack() != page->undoStack())
        return QStringLiteral("stack of another page");
    for (int i = 0; i < host.tabs()->count(); ++i) {
        const ZvChannel *channel = host.area(i)->channel();
        if (host.tabs()->tabText(i) != channel->name())
            return QStringLiteral("title of tab %1").arg(i);
        if (!QFileInfo::exists(channel->filePath()))
            return QStringLiteral("no file of tab %1").arg(i);
    }
    if (host.area(0)->channel()->id() != 0 || host.area(0)->channel()->index() != 0)
        return QStringLiteral("another first tab");
    if (host.action("Action_Delete_Channel")->isEnabled() != (host.tabs()->currentIndex() > 0))
        return QStringLiteral("the first tab can be deleted, or another cannot");
    const auto *list = host.window->findChild<ZvScheduleListWidget *>();
    for (const ZvSchedule &schedule : page->channel()->scheduleList()) {
        if (list->rowItems(ZvScheduleBasicInfo(schedule)).isEmpty())
            return QStringLiteral("no row of ") + scheduleText(ZvScheduleBasicInfo(schedule));
    }
    ZvScheduleBasicInfo chosen;
    host.window->findChild<ZvScheduleSwitcherWidget *>()->getCurrentScheduleInfo(&chosen);
    if (chosen != page->currentScheduleInfo())
        return QStringLiteral("%1 chosen, %2 shown")
            .arg(scheduleText(chosen), scheduleText(page->currentScheduleInfo()));
    const bool exists = page->isCurrentScheduleEnabled();
    if (host.action("Action_Create_Schedule")->isEnabled() == exists)
        return QStringLiteral("creating is offered wrongly");
    return {};
}

QtMessageHandler passedOn = nullptr;

// The log takes so many lines and no more, and every step may show a window.
void passOn(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type != QtDebugMsg && !message.startsWith(QStringLiteral("This plugin does not support")))
        passedOn(type, context, message);
}

} // namespace

class tst_ShellRandom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everythingInNoOrder_data();
    void everythingInNoOrder();
};

void tst_ShellRandom::initTestCase()
{
    passedOn = qInstallMessageHandler(passOn);
}

void tst_ShellRandom::everythingInNoOrder_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1U, 20U, 300U, 4000U})
        QTest::newRow(qPrintable(QString::number(seed))) << seed;
}

void tst_ShellRandom::everythingInNoOrder()
{
    QFETCH(quint32, seed);
    EditorFixture host;
    // A host that keeps no scene for a moment longer than it has to.
    connect(host.editor, QOverload<QGraphicsScene *>::of(&ZvScheduleEditor::graphicsScenePurged),
            this, [&host] { host.scenes.clear(); });
    QVERIFY(host.start());
    RandomUser user(&host, seed);
    for (int step = 0; step < 150; ++step) {
        user.act();
        const QString found = fault(host);
        QVERIFY2(
            found.isEmpty(),
            qPrintable(QStringLiteral("step %1, %2: %3").arg(step).arg(user.lastStep(), found)));
    }
    while (host.main()->undoGroup()->canUndo())
        host.main()->undoGroup()->undo();
    QCOMPARE(fault(host), QString());
    host.main()->saveAllChannel();
    ChannelFolder::Channels channels;
    QCOMPARE(ChannelFolder(host.data.path()).load(&channels), ChannelFolder::LoadResult::Loaded);
    QCOMPARE(int(channels.size()), host.tabs()->count());
    for (int i = 0; i < host.tabs()->count(); ++i) {
        const ZvChannel stored = readChannelFile(host.area(i)->channel()->filePath());
        QVERIFY(stored.isMatch(*host.area(i)->channel(), false, false));
    }
}

QTEST_MAIN(tst_ShellRandom)
#include "tst_shellrandom.moc"
