#include "ActionHost.h"

#include "SceneMouse.h"

#include "ZvConfig.h"
#include "ZvEditorCommon.h"
#include "domain/ZvScheduleBasicInfo.h"
#include "editor/DockNames.h"
#include "navigation/ZvCalendarWidget.h"
#include "navigation/ZvScheduleListWidget.h"
#include "navigation/ZvScheduleSwitcherWidget.h"
#include "services/UndoCommands.h"
#include "services/ZvScheduleClipboard.h"
#include "timetable/ZvTimeTableTimeItem.h"
#include "workspace/ZvScheduleRenameTabWidget.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QDesktopServices>
#include <QDockWidget>
#include <QGraphicsView>
#include <QMessageBox>
#include <QMimeData>
#include <QStandardItem>
#include <QUndoGroup>
#include <QUndoStack>

#include <algorithm>

using namespace Zavo;

namespace ZavoTest {

namespace {

const QDate Date(2031, 5, 6);
const QPointF EmptyPlace(180.0, 1210.0);    // 20 o'clock, where a paste goes to
constexpr auto DayOfWeek = Weekday::Friday; // not that of the date
constexpr int AnswerInterval = 1;           // ms
constexpr int TabCount = 3;

QList<ZvTime> threeBands()
{
    QList<ZvTime> times;
    for (const int hour : {8, 10, 12})
        times.append({QTime(hour, 0), QTime(hour + 1, 0), QStringLiteral("stage.xml")});
    return times;
}

QString number(int value)
{
    return QString::number(value);
}

QString shownSchedule(const ZvScheduleWorkingArea &page)
{
    const ZvScheduleBasicInfo info = page.currentScheduleInfo();
    if (info.type() == ZvSchedule::DayOfWeek)
        return QStringLiteral("day %1").arg(info.dayOfWeek());
    if (info.type() == ZvSchedule::Date)
        return info.date() == QDate::currentDate() ? QStringLiteral("today")
                                                   : info.date().toString(Qt::ISODate);
    return QStringLiteral("default");
}

// What a host is like that shows a target, be it a new one or one that was used before.
QMap<Target, ActionHost::State> &likeness()
{
    static QMap<Target, ActionHost::State> states;
    return states;
}

} // namespace

ActionHost::ActionHost(Target target)
    : EditorFixture(QStringList())
    , m_target(target)
{
    ZvEditorConfig::getConfig()->setAllInOne(isFirst());
    makeEditor();
    writeChannels();
    m_files = fileState();
    // No button lies behind the end of the tool bar.
    window->resize(1100, 450);
    if (!startHidden())
        return;
    m_page = area(isFirst() ? 0 : 1);
    window->findChild<QDockWidget *>(QLatin1String(DockName::ChooseStage))->hide();
    m_layout = window->saveState();
    connectWitnesses();
    m_isReady = show(target);
}

// The docks take their sizes while nothing has to be painted, which is much the quicker. What is
// painted is not looked at here.
bool ActionHost::startHidden()
{
    window->setUpdatesEnabled(false);
    const bool isStarted =
        editor->exec() && QTest::qWaitFor([this] { return tabs()->count() > 0; });
    window->show();
    return isStarted;
}

ActionHost::~ActionHost()
{
    QDesktopServices::unsetUrlHandler(QString());
}

void ActionHost::writeChannels()
{
    writeChannelFile(data, channelFileName(0), {0, 0, QStringLiteral("Alpha")});
    writeChannelFile(data, channelFileName(2), {2, 2, QStringLiteral("Gamma")});
    const QString path =
        writeChannelFile(data, channelFileName(1), {1, 1, QStringLiteral("Beta"), threeBands()});
    ZvChannel channel = readChannelFile(path);
    ZvSchedule schedule;
    schedule.setTimeList(threeBands());
    schedule.setType(ZvSchedule::Date);
    schedule.setDate(Date);
    channel.insertSchedule(schedule);
    schedule.setType(ZvSchedule::DayOfWeek);
    schedule.setDate({});
    schedule.setDayOfWeek(DayOfWeek);
    channel.insertSchedule(schedule);
    channel.writeToFile();
}

bool ActionHost::show(Target target)
{
    if (!main() || tabs()->count() < TabCount || (target == Target::First) != isFirst())
        return false;
    m_target = target;
    m_isDeclining = false;
    delete m_nameEditor;
    restoreChannels();
    restoreDocks();
    restoreCalendar();
    showSchedule();
    QCoreApplication::processEvents(); // the place of the table in the window
    SceneMouse(m_page->findChild<QGraphicsView *>()).click(EmptyPlace);
    select();
    mark();
    fillClipboard();
    window->activateWindow();
    QCoreApplication::processEvents();
    if (!QTest::qWaitForWindowActive(window.get()))
        return false;
    m_events.clear();
    auto known = likeness().constFind(target);
    if (known == likeness().constEnd())
        known = likeness().insert(target, state());
    return *known == state();
}

// Most commands leave the channels alone, or do no more than to walk through the history.
void ActionHost::restoreChannels()
{
    const auto isSame = [this](int tab) {
        const QUndoStack *stack = area(tab)->undoStack();
        const QUndoCommand *last =
            stack->count() > 0 ? stack->command(stack->count() - 1) : nullptr;
        // Another command may lie where a deleted one lay.
        return last == m_edits.value(tab) &&
               dynamic_cast<const UndoCommand::ChangeChannelName *>(last);
    };
    const bool isHistoryKept =
        isFirst() ? area(0)->undoStack()->count() == 0 && isSame(2) : isSame(1) && isSame(2);
    if (tabs()->count() != TabCount || !isHistoryKept || fileState() != m_files) {
        removeAddedTabs();
        undoEdits();
        restoreFiles();
        makeEdits();
    }
    if (!isFirst())
        m_page->undoStack()->setIndex(1);
    tabs()->setCurrentWidget(m_page);
}

void ActionHost::removeAddedTabs()
{
    while (tabs()->count() > TabCount) {
        tabs()->setCurrentIndex(TabCount);
        main()->removeCurrentChannel();
    }
}

void ActionHost::undoEdits()
{
    if (isFirst())
        setFirstDefaultStage({});
    for (int i = 0; i < TabCount; ++i) {
        QUndoStack *stack = area(i)->undoStack();
        if (stack->count() == 0)
            continue;
        stack->setIndex(0);
        stack->clear();
    }
}

// What is in the files is what the channels will be compared with.
void ActionHost::restoreFiles()
{
    if (fileState() == m_files)
        return;
    main()->saveAllChannel();
    const State written = fileState();
    for (auto it = written.cbegin(); it != written.cend(); ++it) {
        if (!m_files.contains(it.key()))
            QFile::remove(data.channelFolder() + QLatin1Char('/') + it.key());
    }
    for (auto it = m_files.cbegin(); it != m_files.cend(); ++it)
        data.write(QStringLiteral("channel/") + it.key(), it.value().toUtf8());
}

void ActionHost::restoreDocks()
{
    if (window->saveState() != m_layout)
        window->restoreState(m_layout);
}

void ActionHost::restoreCalendar()
{
    auto *calendar = window->findChild<ZvCalendarWidget *>();
    calendar->setFirstDayOfWeek(Qt::Monday);
    calendar->setVerticalHeaderFormat(QCalendarWidget::ISOWeekNumbers);
}

// Something to save, and, but on the first tab, to undo and to redo.
void ActionHost::makeEdits()
{
    main()->changeChannelNameWithUndo(2, QStringLiteral("Gamma1"));
    if (isFirst()) {
        setFirstDefaultStage(QStringLiteral("stage.xml"));
    } else {
        main()->changeChannelNameWithUndo(1, QStringLiteral("Beta1"));
        main()->changeChannelNameWithUndo(1, QStringLiteral("Beta2"));
    }
    for (const int tab : {1, 2}) {
        const QUndoStack *stack = area(tab)->undoStack();
        m_edits.insert(tab, stack->command(stack->count() - 1));
    }
}

// This leaves nothing in the history.
void ActionHost::setFirstDefaultStage(const QString &stage)
{
    tabs()->setCurrentIndex(0);
    main()->switchToDefaultSchedule();
    area(0)->setDefaultStageName(stage);
}

void ActionHost::showSchedule()
{
    main()->switchToDateSchedule(m_target == Target::Missing ? Date.addDays(1) : Date);
    window->findChild<ZvCalendarWidget *>()->clearMultiSelection();
    if (m_target == Target::WeekDay)
        main()->switchToDayOfWeekSchedule(Qt::DayOfWeek(DayOfWeek));
    if (m_target == Target::Default || isFirst())
        main()->switchToDefaultSchedule();
}

void ActionHost::mark() const
{
    list()->deselectAllItems();
    if (m_target == Target::Partly)
        window->findChild<ZvCalendarWidget *>()->selectWeek(Date);
    const auto check = [this](const ZvScheduleBasicInfo &info) {
        list()->rowItems(info).first()->setCheckState(Qt::Checked);
    };
    if (m_target == Target::Partly || m_target == Target::Wholly)
        check(ZvScheduleBasicInfo(Date));
    if (m_target == Target::WeekDay || m_target == Target::Wholly)
        check(ZvScheduleBasicInfo(DayOfWeek));
    if (m_target == Target::Default || m_target == Target::Wholly || isFirst())
        check(ZvScheduleBasicInfo(ZvSchedule::Default));
}

void ActionHost::select() const
{
    main()->deselectAllItems();
    if (m_target == Target::Missing || m_target == Target::Nothing || isFirst())
        return;
    main()->selectAllItems();
    const QList<ZvTimeTableTimeItem *> items = m_page->selectedTimeItems();
    if (m_target == Target::Partly)
        items.at(1)->setSelected(false);
    if (m_target == Target::Partly || m_target == Target::WeekDay)
        items.at(2)->setSelected(false);
}

// A band and a schedule, so that every widget has something to paste.
void ActionHost::fillClipboard() const
{
    if (isFirst()) {
        QGuiApplication::clipboard()->clear();
        return;
    }
    const QList<ZvTime> times = {{QTime(1, 0), QTime(2, 0), QStringLiteral("copied.xml")}};
    ZvSchedule schedule;
    schedule.setType(ZvSchedule::Default);
    schedule.setTimeList(times);
    auto *payload = new QMimeData;
    payload->setData(ZvEditorCommon::MIME_TYPE_TIME_DATA, ZvScheduleClipboard::timesToXml(times));
    payload->setData(ZvEditorCommon::MIME_TYPE_SCHEDULE_DATA,
                     ZvScheduleClipboard::schedulesToXml({schedule}));
    QGuiApplication::clipboard()->setMimeData(payload);
}

void ActionHost::connectWitnesses()
{
    // clang-format off
    connect(editor, SIGNAL(closed()), this, SLOT(onClosed()));
    connect(editor, SIGNAL(requestQuit()), this, SLOT(onQuit()));
    connect(editor, SIGNAL(requestShowUploadManager()), this, SLOT(onUpload()));
    connect(editor, SIGNAL(requestShowChannelConfiguration()), this, SLOT(onConfigure()));
    connect(editor, SIGNAL(requestShowChannelExporter(QString)), this, SLOT(onExport(QString)));
    connect(QGuiApplication::clipboard(), SIGNAL(dataChanged()), this, SLOT(onClipboard()));
    connect(&m_answers, SIGNAL(timeout()), this, SLOT(answer()));
    // clang-format on
    tabs()->installEventFilter(this);
    m_answers.start(AnswerInterval);
    QDesktopServices::setUrlHandler(QString(), this, "open");
}

void ActionHost::open(const QUrl &url)
{
    m_events.append(QStringLiteral("opens ") + url.path().mid(data.path().size() + 1));
}

void ActionHost::onExport(const QString &path)
{
    m_events.append(QStringLiteral("export ") + QFileInfo(path).fileName());
}

void ActionHost::answer()
{
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (!dialog || dialog == m_answered)
        return;
    m_answered = dialog;
    m_events.append(QStringLiteral("asks ") + dialog->windowTitle());
    const auto *box = qobject_cast<QMessageBox *>(dialog);
    using Buttons = QList<QMessageBox::StandardButton>;
    const Buttons answers = m_isDeclining
                                ? Buttons{QMessageBox::Cancel, QMessageBox::No}
                                : Buttons{QMessageBox::NoToAll, QMessageBox::Yes, QMessageBox::Ok};
    for (const auto button : answers) {
        if (QAbstractButton *found = box ? box->button(button) : nullptr) {
            found->click();
            return;
        }
    }
    dialog->reject();
}

QToolBar *ActionHost::toolBar() const
{
    return window->findChild<QToolBar *>(QLatin1String(WorkspaceName::ToolBar));
}

ZvScheduleListWidget *ActionHost::list() const
{
    return window->findChild<ZvScheduleListWidget *>();
}

ZvScheduleSwitcherWidget *ActionHost::switcher() const
{
    return window->findChild<ZvScheduleSwitcherWidget *>();
}

QList<QAction *> ActionHost::actions() const
{
    QList<QAction *> all;
    const QList<QMenu *> menus = editor->menu();
    for (const QMenu *menu : menus)
        all.append(actionsOf(menu));
    all.append(toolBar()->actions().last());
    return all;
}

QList<QAction *> ActionHost::actionsOf(const QMenu *menu)
{
    QList<QAction *> named;
    const QList<QAction *> all = menu->actions();
    for (QAction *action : all) {
        if (action->menu())
            named.append(actionsOf(action->menu()));
        else if (!action->isSeparator())
            named.append(action);
    }
    return named;
}

QAction *ActionHost::actionOf(const QString &name) const
{
    const QList<QAction *> all = actions();
    const auto found = std::find_if(all.cbegin(), all.cend(), [&name](const QAction *action) {
        return nameOf(action) == name;
    });
    return found == all.cend() ? nullptr : *found;
}

QString ActionHost::nameOf(const QAction *action)
{
    return action->text().remove(QLatin1Char('&')).remove(QStringLiteral("..."));
}

ActionHost::State ActionHost::fileState() const
{
    State state;
    const QStringList names = data.names(QStringLiteral("channel"));
    for (const QString &name : names)
        state.insert(name, QString::fromUtf8(data.read(QStringLiteral("channel/") + name)));
    return state;
}

QString ActionHost::tabTexts() const
{
    QStringList texts;
    for (int i = 0; i < tabs()->count(); ++i)
        texts.append(tabs()->tabText(i));
    return texts.join(QLatin1Char(','));
}

void ActionHost::insertCalendar(State *state) const
{
    const auto *calendar = window->findChild<ZvCalendarWidget *>();
    const QDate date = calendar->selectedDate();
    state->insert(QStringLiteral("date"), date == QDate::currentDate()
                                              ? QStringLiteral("today")
                                              : date.toString(Qt::ISODate));
    state->insert(QStringLiteral("dates"), number(calendar->selectedDates().size()));
    state->insert(QStringLiteral("first day"),
                  QLocale::c().dayName(calendar->firstDayOfWeek(), QLocale::ShortFormat));
    state->insert(QStringLiteral("week numbers"),
                  calendar->verticalHeaderFormat() == QCalendarWidget::NoVerticalHeader
                      ? QStringLiteral("hidden")
                      : QStringLiteral("shown"));
}

QString ActionHost::visibleDocks() const
{
    QStringList names;
    const auto docks = window->findChildren<QDockWidget *>();
    for (const QDockWidget *dock : docks) {
        if (dock->isVisible())
            names.append(dock->windowTitle().section(QLatin1Char(' '), -1));
    }
    names.sort();
    return names.join(QLatin1Char('+'));
}

// A platform may take the focus from the editor, and so end it, when the menu's window goes.
bool ActionHost::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ChildPolished) {
        QObject *child = static_cast<const QChildEvent *>(event)->child();
        if (auto *edited = qobject_cast<ZvScheduleRenameTabWidget *>(child)) {
            m_nameEditor = edited;
            m_events.append(QStringLiteral("renames ") + edited->text());
        }
    }
    return QObject::eventFilter(watched, event);
}

ActionHost::State ActionHost::state() const
{
    State state = fileState();
    const ZvScheduleWorkingArea *page = main() ? main()->currentWorkingArea() : nullptr;
    if (!page)
        return state;
    state.insert(QStringLiteral("tabs"), tabTexts());
    state.insert(QStringLiteral("tab"), number(tabs()->currentIndex()));
    state.insert(QStringLiteral("shown"), shownSchedule(*page));
    state.insert(QStringLiteral("docks"), visibleDocks());
    state.insert(QStringLiteral("marked"), number(list()->checkedInfos().size()));
    insertCalendar(&state);
    const QUndoStack *stack = page->undoStack();
    const QString history = QStringLiteral("%1/%2").arg(stack->index()).arg(stack->count());
    // Of another page it is of no interest how it differs from this one.
    const QString prefix = page == m_page ? QString() : QStringLiteral("other ");
    state.insert(prefix + QStringLiteral("bands"), number(page->currentTimes().size()));
    state.insert(prefix + QStringLiteral("selected"), number(page->selectedTimeItems().size()));
    state.insert(prefix + QStringLiteral("schedules"),
                 number(page->channel()->scheduleList().size()));
    state.insert(prefix + QStringLiteral("history"), history);
    return state;
}

QString ActionHost::changesSince(const State &before)
{
    const State after = state();
    QStringList changes;
    changes.swap(m_events);
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        const bool isFile = it.key().endsWith(QLatin1String(".xml"));
        if (after.contains(it.key()) && after.value(it.key()) != it.value())
            changes.append(isFile ? it.key() + QStringLiteral(" written")
                                  : it.key() + QStringLiteral(" %1>%2").arg(it.value(),
                                                                            after.value(it.key())));
        else if (isFile && !after.contains(it.key()))
            changes.append(it.key() + QStringLiteral(" removed"));
    }
    for (auto it = after.cbegin(); it != after.cend(); ++it) {
        if (!before.contains(it.key()) && it.key().endsWith(QLatin1String(".xml")))
            changes.append(it.key() + QStringLiteral(" new"));
    }
    return changes.join(QStringLiteral("; "));
}

} // namespace ZavoTest
