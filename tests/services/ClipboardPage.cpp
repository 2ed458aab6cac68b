#include "ClipboardPage.h"

#include "PageState.h"
#include "SceneMouse.h"

#include "services/ZvScheduleClipboard.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <iostream>
#include <string>

using namespace Zavo;

namespace ZavoTest {

namespace {

constexpr int standardInput = 0;
constexpr int bandLength = 20; ///< seconds

QList<ZvTime> bandsInARow(int count)
{
    QList<ZvTime> bands;
    for (int i = 0; i < count; ++i) {
        const QTime start = QTime(0, 0).addSecs(bandLength * i);
        bands.append(ZvTime(start, start.addSecs(bandLength), QStringLiteral("s%1.xml").arg(i)));
    }
    return bands;
}

QString yesOrNo(bool yes)
{
    return yes ? QStringLiteral("yes") : QStringLiteral("no");
}

QString schedulesOfTheClipboard()
{
    QStringList texts;
    const QList<ZvSchedule> schedules = ZvScheduleClipboard::readSchedulesFromClipboard();
    for (const ZvSchedule &schedule : schedules) {
        texts.append(QStringLiteral("%1 %2 [%3]")
                         .arg(schedule.date().toString(Qt::ISODate), schedule.defaultStage(),
                              bandTexts(schedule.timeList()).join(QStringLiteral(", "))));
    }
    return texts.join(QStringLiteral("; "));
}

void writeSchedules()
{
    const QDate date(2026, 3, 9);
    ZvScheduleClipboard::writeSchedulesToClipboard(
        {scheduleOf(ZvScheduleBasicInfo(date), bandsInARow(1), QStringLiteral("d.xml")),
         ZvSchedule(), scheduleOf(ZvScheduleBasicInfo(date.addDays(2)))});
}

} // namespace

ClipboardPage::ClipboardPage()
{
    showBands(0);
    auto *notifier = new QSocketNotifier(standardInput, QSocketNotifier::Read, this);
    connect(notifier, SIGNAL(activated(QSocketDescriptor,QSocketNotifier::Type)), this,
                             SLOT(readLine()));
}

void ClipboardPage::readLine()
{
    std::string line;
    if (!std::getline(std::cin, line)) {
        QCoreApplication::quit();
        return;
    }
    std::cout << obey(QString::fromStdString(line)).toStdString() << std::endl;
}

QString ClipboardPage::obey(const QString &command)
{
    if (command.startsWith(QLatin1String("bands "))) {
        showBands(command.mid(6).toInt());
        return QStringLiteral("shown");
    }
    if (command == QLatin1String("copy"))
        return yesOrNo(m_page->area()->copySelectedItems());
    if (command == QLatin1String("cut"))
        return yesOrNo(!m_page->area()->cutSelectedItems().isEmpty());
    if (command == QLatin1String("writeSchedules")) {
        writeSchedules();
        return QStringLiteral("written");
    }
    if (command == QLatin1String("readSchedules"))
        return schedulesOfTheClipboard();
    return obeyAtAClick(command);
}

QString ClipboardPage::obeyAtAClick(const QString &command)
{
    clickStrip();
    if (command == QLatin1String("possible"))
        return yesOrNo(m_page->area()->isPastingPossible());
    if (command == QLatin1String("paste") && m_page->area()->pasteItems())
        return bandTexts(m_page->area()->currentTimes()).join(QStringLiteral("; "));
    return yesOrNo(false);
}

void ClipboardPage::showBands(int count)
{
    m_page = std::make_unique<WorkingAreaFixture>(
        QList<ZvSchedule>{scheduleOf(defaultInfo, bandsInARow(count))});
    m_page->area()->switchToDefaultSchedule();
    m_page->area()->selectAllItems();
}

void ClipboardPage::clickStrip()
{
    const QString time = QStringLiteral("06:00:00");
    m_page->view()->centerOn(QPointF(180.0, yOf(time)));
    SceneMouse(m_page->view()).click(QPointF(180.0, yOf(time)));
}

} // namespace ZavoTest
