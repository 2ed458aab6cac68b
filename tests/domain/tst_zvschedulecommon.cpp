#include "domain/ZvScheduleCommon.h"

#include "MessageBoxAnswer.h"

#include <QAction>
#include <QLocale>
#include <QWidget>
#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

namespace {

QAction *addAction(QWidget *widget, const char *name)
{
    auto *action = new QAction(widget);
    action->setObjectName(QLatin1String(name));
    widget->addAction(action);
    return action;
}

QStringList names(const QList<QAction *> &actions)
{
    QStringList names;
    for (const QAction *action : actions)
        names.append(action->objectName());
    return names;
}

QStringList list(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

} // namespace

class tst_ZvScheduleCommon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void actionsInTheOrderOfTheWidget();
    void firstOfEachName();
    void actionsOfNothing();
    void removesActions();
    void removesNothing();
    void pasteCountQuestion_data();
    void pasteCountQuestion();
    void cannotPasteMultiple();
    void replaceQuestion_data();
    void replaceQuestion();
};

void tst_ZvScheduleCommon::actionsInTheOrderOfTheWidget()
{
    QWidget widget;
    for (const char *name : {"A", "B", "C", "D"})
        addAction(&widget, name);
    QCOMPARE(names(ZvScheduleCommon::actionsByObjectName(&widget, list("D X A C"))), list("A C D"));
    QCOMPARE(names(ZvScheduleCommon::actionsByObjectName(&widget, list("a b"))), QStringList());
}

void tst_ZvScheduleCommon::firstOfEachName()
{
    QWidget widget;
    QAction *first = addAction(&widget, "A");
    addAction(&widget, "A");
    QAction *other = addAction(&widget, "B");
    addAction(&widget, "B");
    const QStringList twice = list("B A A B");
    QCOMPARE(ZvScheduleCommon::actionsByObjectName(&widget, twice),
             QList<QAction *>({first, other}));
    QCOMPARE(twice, list("B A A B"));
}

void tst_ZvScheduleCommon::actionsOfNothing()
{
    QWidget widget;
    QCOMPARE(ZvScheduleCommon::actionsByObjectName(nullptr, list("A")), QList<QAction *>());
    QCOMPARE(ZvScheduleCommon::actionsByObjectName(&widget, list("A")), QList<QAction *>());
    addAction(&widget, "A");
    QCOMPARE(ZvScheduleCommon::actionsByObjectName(&widget, {}), QList<QAction *>());
    // The empty name is a name like any other.
    QAction *nameless = addAction(&widget, "");
    QCOMPARE(ZvScheduleCommon::actionsByObjectName(&widget, {QString()}),
             QList<QAction *>{nameless});
}

void tst_ZvScheduleCommon::removesActions()
{
    QWidget target;
    QWidget source;
    for (const char *name : {"A", "B", "C"})
        target.addAction(addAction(&source, name));
    addAction(&target, "D");
    source.removeAction(source.actions().at(1));
    ZvScheduleCommon::removeWidgetActions(&target, &source);
    QCOMPARE(names(target.actions()), list("B D"));
    QCOMPARE(names(source.actions()), list("A C"));
    ZvScheduleCommon::removeWidgetActions(&source, &source);
    QVERIFY(source.actions().isEmpty());
}

void tst_ZvScheduleCommon::removesNothing()
{
    QWidget widget;
    addAction(&widget, "A");
    ZvScheduleCommon::removeWidgetActions(nullptr, &widget);
    ZvScheduleCommon::removeWidgetActions(&widget, nullptr);
    ZvScheduleCommon::removeWidgetActions(nullptr, nullptr);
    QCOMPARE(names(widget.actions()), list("A"));
}

void tst_ZvScheduleCommon::pasteCountQuestion_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("click");
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::newRow("yes") << QMessageBox::Yes << QMessageBox::Yes;
    QTest::newRow("no") << QMessageBox::No << QMessageBox::No;
    QTest::newRow("escape") << QMessageBox::NoButton << QMessageBox::No;
}

void tst_ZvScheduleCommon::pasteCountQuestion()
{
    QFETCH(QMessageBox::StandardButton, click);
    QFETCH(QMessageBox::StandardButton, answer);
    QWidget parent;
    MessageBoxAnswer boxes;
    boxes.expect(click)
        .title(QStringLiteral("Paste Schedule"))
        .text(QStringLiteral("The paste destinations is different from the schedules in clipboard "
                             "in number.\nDo you want to continue the Paste?"))
        .icon(QMessageBox::Question)
        .buttons(QMessageBox::Yes | QMessageBox::No)
        .whileShown([&parent](QMessageBox *box) { QCOMPARE(box->parentWidget(), &parent); });
    QCOMPARE(ZvScheduleCommon::confirmSchedulePasteCount(&parent), answer);
}

void tst_ZvScheduleCommon::cannotPasteMultiple()
{
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::Ok)
        .title(QStringLiteral("Cannot Paste"))
        .text(QStringLiteral("It is not possible to paste multiple schedules."))
        .icon(QMessageBox::Critical)
        .buttons(QMessageBox::Ok);
    ZvScheduleCommon::showCannotPasteMultiple(nullptr);
    QVERIFY(boxes.isDone());
}

void tst_ZvScheduleCommon::replaceQuestion_data()
{
    QTest::addColumn<QList<ZvScheduleBasicInfo>>("infos");
    QTest::addColumn<QString>("lines");
    using Infos = QList<ZvScheduleBasicInfo>;
    const QDate date(2026, 3, 11);
    const QLocale locale = QLocale::system();
    const QString dateText =
        QStringLiteral("%1(%2)").arg(locale.toString(date, QLocale::LongFormat),
                                     locale.dayName(date.dayOfWeek(), QLocale::ShortFormat));
    const QString sunday = locale.dayName(Qt::Sunday, QLocale::LongFormat);
    const ZvScheduleBasicInfo none;
    QTest::newRow("none") << Infos{} << QString();
    QTest::newRow("default") << Infos{ZvScheduleBasicInfo(ZvSchedule::Default)}
                             << QStringLiteral("1: Default\n");
    QTest::newRow("date") << Infos{ZvScheduleBasicInfo(date)}
                          << QStringLiteral("1: %1\n").arg(dateText);
    QTest::newRow("day") << Infos{ZvScheduleBasicInfo(Weekday::Sunday)}
                         << QStringLiteral("1: %1\n").arg(sunday);
    // What has no name takes no number.
    QTest::newRow("all")
        << Infos{none,
                 ZvScheduleBasicInfo(Weekday::Sunday),
                 none,
                 ZvScheduleBasicInfo(date),
                 ZvScheduleBasicInfo(date),
                 ZvScheduleBasicInfo(ZvSchedule::Default)}
        << QStringLiteral("1: %1\n2: %2\n3: %2\n4: Default\n").arg(sunday, dateText);
    QTest::newRow("nothing with a name") << Infos{none} << QStringLiteral("");
}

void tst_ZvScheduleCommon::replaceQuestion()
{
    QFETCH(QList<ZvScheduleBasicInfo>, infos);
    QFETCH(QString, lines);
    for (const bool removed : {false, true}) {
        const QString words = removed ? QStringLiteral("removed or ") : QString();
        const QString details =
            infos.isEmpty()
                ? QString()
                : QStringLiteral("The following schedule will be %1replaced.\n\n").arg(words) +
                      lines;
        for (const auto reply : {QMessageBox::Yes, QMessageBox::No}) {
            MessageBoxAnswer boxes;
            boxes.expect(reply)
                .title(QStringLiteral("Paste Schedule"))
                .text(QStringLiteral("The schedule exists in paste destination. The schedule will "
                                     "be %1replaced.\nDo you want to continue?")
                          .arg(words))
                .icon(QMessageBox::Warning)
                .buttons(QMessageBox::Yes | QMessageBox::No)
                .whileShown(
                    [&details](QMessageBox *box) { QCOMPARE(box->detailedText(), details); });
            QCOMPARE(ZvScheduleCommon::confirmScheduleReplace(infos, nullptr, removed), reply);
        }
    }
}

QTEST_MAIN(tst_ZvScheduleCommon)
#include "tst_zvschedulecommon.moc"
