#include "domain/ScheduleText.h"
#include "domain/ZvScheduleBasicInfo.h"

#include <QtTest>

using namespace Zavo;

class tst_ScheduleText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dateHasItsDayInParentheses();
    void namesSchedules();
};

void tst_ScheduleText::dateHasItsDayInParentheses()
{
    const QDate date(2026, 12, 24);
    const QLocale locale = QLocale::system();
    const QString text = dateText(date);
    QCOMPARE(text, locale.toString(date, QLocale::LongFormat) + QLatin1Char('(') +
                       locale.dayName(4, QLocale::ShortFormat) + QLatin1Char(')'));
    QVERIFY(!text.contains(QStringLiteral(" (")));
    QCOMPARE(dateText(QDate()), QStringLiteral("()"));
}

void tst_ScheduleText::namesSchedules()
{
    QCOMPARE(scheduleText(ZvScheduleBasicInfo(ZvSchedule::Default)), QStringLiteral("Default"));
    QCOMPARE(scheduleText(ZvScheduleBasicInfo(QDate(2026, 2, 1))), dateText(QDate(2026, 2, 1)));
    QCOMPARE(scheduleText(ZvScheduleBasicInfo(Weekday::Wednesday)),
             QLocale::system().dayName(3, QLocale::LongFormat));
    QCOMPARE(scheduleText(ZvScheduleBasicInfo(Weekday::NoDay)), QString());
    QCOMPARE(scheduleText(ZvScheduleBasicInfo()), QString());
}

QTEST_GUILESS_MAIN(tst_ScheduleText)
#include "tst_scheduletext.moc"
