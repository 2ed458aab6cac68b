#include "workspace/ZvChannelInformationWidget.h"
#include "workspace/ZvScheduleChangeChannelOrderDialog.h"

#include "MainWidgetFixture.h"
#include "MessageBoxAnswer.h"
#include "SignalLog.h"

#include "workspace/ZvScheduleRenameTabWidget.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTimer>
#include <QUndoGroup>
#include <QUndoStack>
#include <QtTest>

#include <functional>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const QStringList Names{QStringLiteral("Hall"), QStringLiteral("Foyer"), QStringLiteral("Gate"),
                        QStringLiteral("Lift")};

/// Looks at the next modal dialog, which is closed afterwards if it is still open.
class DialogVisit final
{
public:
    explicit DialogVisit(std::function<void(QDialog *)> look)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, look] {
            const QPointer<QDialog> dialog =
                qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            m_timer.stop();
            m_isSeen = true;
            look(dialog);
            if (dialog && dialog->isVisible())
                dialog->reject();
        });
        m_timer.start(0);
    }
    Q_DISABLE_COPY(DialogVisit)

    bool isSeen() const { return m_isSeen; }

private:
    QTimer m_timer;
    bool m_isSeen = false;
};

void press(QDialog *dialog, QDialogButtonBox::StandardButton button)
{
    QTest::mouseClick(dialog->findChild<QDialogButtonBox *>()->button(button), Qt::LeftButton);
}

QStringList labelTexts(const QWidget *widget)
{
    QStringList texts;
    const QList<QLabel *> labels = widget->findChildren<QLabel *>();
    for (const QLabel *label : labels)
        texts.append(label->text());
    return texts;
}

QStringList itemTexts(const QComboBox *box)
{
    QStringList texts;
    for (int i = 0; i < box->count(); ++i)
        texts.append(box->itemText(i) + QLatin1Char('=') + box->itemData(i).toString());
    return texts;
}

/// From top to bottom, what stands in a vertical layout: a class, or "space".
QStringList rowsOf(const QDialog *dialog)
{
    QStringList rows;
    for (int i = 0; i < dialog->layout()->count(); ++i) {
        const QWidget *widget = dialog->layout()->itemAt(i)->widget();
        rows.append(QLatin1String(widget ? widget->metaObject()->className() : "space"));
    }
    return rows;
}

QString value(const QWidget *page, const char *name)
{
    const auto *label = page->findChild<QLabel *>(QLatin1String(name));
    return label ? label->text() : QStringLiteral("no label");
}

/// Indices of the channels by tab, "0 1 2".
QString indices(const MainWidgetFixture &main)
{
    QStringList numbers;
    for (int i = 0; i < main.tabs()->count(); ++i)
        numbers.append(QString::number(main.area(i)->channel()->index()));
    return numbers.join(QLatin1Char(' '));
}

/// Moves the channel of the current tab to the place @p target by the dialog.
void moveTo(const MainWidgetFixture &main, int target)
{
    DialogVisit visit([target](QDialog *dialog) {
        auto *box = dialog->findChild<QComboBox *>();
        QTest::keyClick(box, Qt::Key_Home);
        while (box->currentData().toInt() != target && box->currentIndex() + 1 < box->count())
            QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(box->currentData().toInt(), target);
        press(dialog, QDialogButtonBox::Ok);
    });
    main.widget->showChangeChannelOrderDialog();
    QVERIFY(visit.isSeen());
}

} // namespace

/// The window that moves a channel, and the one that tells about it.
class tst_ChannelDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void orderDialog();
    void targetsLeaveOutTheFirstAndTheCurrent();
    void namesAreText();
    void moves_data();
    void moves();
    void movesPastAHole();
    void movedIndicesAreSaved();
    void moveTellsOfTheTab();
    void undoAfterAMove();
    void refusedMove_data();
    void refusedMove();
    void nothingToChoose();
    void firstTabStays();
    void orderWithoutTabs();
    void widgetDiesBehindTheDialog();
    void channelDiesBehindTheDialog();
    void renameEndsBeforeTheDialog();
    void selectedIndex();
    void informationDialog();
    void informationOfANewChannel();
    void informationCountsWhatIsStored();
    void informationWithoutAChannel();
    void informationWithoutTabs();
};

void tst_ChannelDialogs::orderDialog()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->show();
    main.tabs()->setCurrentIndex(2);
    DialogVisit visit([&main](QDialog *dialog) {
        QVERIFY(qobject_cast<ZvScheduleChangeChannelOrderDialog *>(dialog));
        QCOMPARE(dialog->parentWidget(), static_cast<QWidget *>(main.widget.get()));
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Change Channel Order"));
        QVERIFY(!(dialog->windowFlags() & Qt::WindowContextHelpButtonHint));
        QCOMPARE(dialog->minimumWidth(), 360);
        QCOMPARE(rowsOf(dialog), (QStringList{QStringLiteral("QLabel"), QStringLiteral("QLabel"),
                                              QStringLiteral("QLabel"), QStringLiteral("QComboBox"),
                                              QStringLiteral("QLabel"), QStringLiteral("space"),
                                              QStringLiteral("QDialogButtonBox")}));
        const auto *layout = dialog->layout();
        const auto label = [layout](int row) {
            return qobject_cast<QLabel *>(layout->itemAt(row)->widget());
        };
        QCOMPARE(label(0)->text(), QStringLiteral("You can change the channel order."));
        QCOMPARE(label(1)->text(), QStringLiteral("ID: 2  Name: Gate  Order: #2"));
        QCOMPARE(label(1)->styleSheet(),
                 QStringLiteral("padding: 5px; margin-bottom: 5px; border-style: solid; "
                                "border-width: 1px; border-color: darkgray;"));
        QCOMPARE(label(2)->text(), QStringLiteral("Move To"));
        QCOMPARE(label(4)->text(), QStringLiteral("*This operation can not be undone."));
        QCOMPARE(label(4)->styleSheet(), QStringLiteral("QLabel{color:blue;}"));
        const QSpacerItem *space = layout->itemAt(5)->spacerItem();
        QCOMPARE(space->sizeHint(), QSize(16, 16));
        QCOMPARE(space->expandingDirections(), Qt::Orientations(Qt::Vertical));
        QCOMPARE(dialog->findChild<QDialogButtonBox *>()->standardButtons(),
                 QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
        QCOMPARE(itemTexts(dialog->findChild<QComboBox *>()),
                 (QStringList{QStringLiteral("#1: Foyer=1"), QStringLiteral("#3: Lift=3")}));
    });
    main.widget->showChangeChannelOrderDialog();
    QVERIFY(visit.isSeen());
    QVERIFY(!main.widget->findChild<QDialog *>());
}

void tst_ChannelDialogs::targetsLeaveOutTheFirstAndTheCurrent()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    const QStringList all{QStringLiteral("#1: Foyer=1"), QStringLiteral("#2: Gate=2"),
                          QStringLiteral("#3: Lift=3")};
    for (int current = 1; current < Names.size(); ++current) {
        main.tabs()->setCurrentIndex(current);
        QStringList expected = all;
        expected.removeAt(current - 1);
        DialogVisit visit([&expected](QDialog *dialog) {
            QCOMPARE(itemTexts(dialog->findChild<QComboBox *>()), expected);
        });
        main.widget->showChangeChannelOrderDialog();
        QVERIFY(visit.isSeen());
    }
}

void tst_ChannelDialogs::namesAreText()
{
    MainWidgetFixture main;
    main.createTabs({QStringLiteral("a"), QStringLiteral("<b>%1&x</b> %2"),
                     QString(300, QLatin1Char('w')), QStringLiteral("%3 &amp; %1")});
    main.tabs()->setCurrentIndex(1);
    {
        DialogVisit visit([](QDialog *dialog) {
            const QLabel *label = dialog->findChildren<QLabel *>().at(0);
            for (const QLabel *candidate : dialog->findChildren<QLabel *>())
                label = candidate->text().startsWith(QStringLiteral("ID")) ? candidate : label;
            QCOMPARE(label->text(), QStringLiteral("ID: 1  Name: <b>%1&x</b> %2  Order: #1"));
            QCOMPARE(label->textFormat(), Qt::PlainText);
            QCOMPARE(dialog->findChild<QComboBox *>()->itemText(1),
                     QStringLiteral("#3: %3 &amp; %1"));
            QVERIFY(dialog->width() < 1000);
        });
        main.widget->showChangeChannelOrderDialog();
        QVERIFY(visit.isSeen());
    }
    DialogVisit visit([](QDialog *dialog) {
        QCOMPARE(value(dialog, "i_name"), QStringLiteral("<b>%1&x</b> %2"));
        QCOMPARE(dialog->findChild<QLabel *>(QStringLiteral("i_name"))->textFormat(),
                 Qt::PlainText);
    });
    main.widget->showCurrentChannelInformation();
    QVERIFY(visit.isSeen());
}

void tst_ChannelDialogs::moves_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("order");
    QTest::newRow("forward by one") << 1 << 2 << "Hall Gate Foyer Lift";
    QTest::newRow("to the end") << 1 << 3 << "Hall Gate Lift Foyer";
    QTest::newRow("back by one") << 3 << 2 << "Hall Foyer Lift Gate";
    QTest::newRow("to the front") << 3 << 1 << "Hall Lift Foyer Gate";
}

void tst_ChannelDialogs::moves()
{
    QFETCH(int, from);
    QFETCH(int, to);
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->show();
    main.tabs()->setCurrentIndex(from);
    moveTo(main, to);
    QTEST(main.tabTexts().join(QLatin1Char(' ')), "order");
    QCOMPARE(indices(main), QStringLiteral("0 1 2 3"));
    QCOMPARE(main.tabs()->currentIndex(), to);
    QCOMPARE(main.widget->currentWorkingArea()->channelName(), Names.at(from));
    QCOMPARE(main.widget->undoGroup()->activeStack(), main.area(to)->undoStack());
    for (int i = 0; i < Names.size(); ++i) {
        QCOMPARE(main.area(i)->channelName(), main.tabTexts().at(i));
        QCOMPARE(main.area(i)->tabIndex(), i);
    }
    // And back again.
    moveTo(main, from);
    QCOMPARE(main.tabTexts(), Names);
    QCOMPARE(indices(main), QStringLiteral("0 1 2 3"));
}

// The list shows the indices as they are, with the hole that a deleted channel has left.
void tst_ChannelDialogs::movesPastAHole()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.tabs()->setCurrentIndex(1);
    {
        MessageBoxAnswer answer;
        answer.expect(QMessageBox::Yes);
        main.widget->removeCurrentChannel();
    }
    QCOMPARE(indices(main), QStringLiteral("0 2 3"));
    moveTo(main, 3);
    QCOMPARE(main.tabTexts(), (QStringList{Names[0], Names[3], Names[2]}));
    QCOMPARE(main.tabs()->currentIndex(), 2);
    QCOMPARE(indices(main), QStringLiteral("0 1 2"));
}

void tst_ChannelDialogs::movedIndicesAreSaved()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.tabs()->setCurrentIndex(1);
    moveTo(main, 3);
    QVERIFY(main.area(3)->isChannelChanged());
    QCOMPARE(main.stored(1).index(), 1);
    main.widget->saveAllChannel();
    // Files keep the number of their channel's id.
    QCOMPARE(main.stored(0).index(), 0);
    QCOMPARE(main.stored(1).index(), 3);
    QCOMPARE(main.stored(2).index(), 1);
    QCOMPARE(main.stored(3).index(), 2);
    QCOMPARE(main.stored(1).name(), Names.at(1));
}

void tst_ChannelDialogs::moveTellsOfTheTab()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.tabs()->setCurrentIndex(3);
    SignalLog log;
    log.watch(main.tabs(), SIGNAL(tabMoved(int,int)), "moved");
    log.watch(main.widget.get(), SIGNAL(currentChannelChanged(const ZvChannel*)), "channel");
    moveTo(main, 1);
    // The bar itself tells of the place first, when the channels do not know it yet.
    QCOMPARE(log.names().join(QLatin1Char(' ')), QStringLiteral("channel moved channel channel"));
    QCOMPARE(log.arguments(1), (QVariantList{3, 1}));
    QCOMPARE(log.arguments(2).first().value<const ZvChannel *>(), main.area(3)->channel());
    QCOMPARE(log.arguments(3).first().value<const ZvChannel *>(), main.area(1)->channel());
}

void tst_ChannelDialogs::undoAfterAMove()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->changeChannelNameWithUndo(2, QStringLiteral("New"));
    moveTo(main, 1);
    QCOMPARE(main.widget->undoGroup()->activeStack()->count(), 1); // no step of its own
    main.tabs()->setCurrentIndex(3);
    main.area(1)->undoStack()->undo();
    QCOMPARE(main.tabTexts().join(QLatin1Char(' ')), QStringLiteral("Hall Gate Foyer Lift"));
    QCOMPARE(main.tabs()->currentIndex(), 1);
    QCOMPARE(indices(main), QStringLiteral("0 1 2 3"));
}

void tst_ChannelDialogs::refusedMove_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("cancel") << 0;
    QTest::newRow("escape") << 1;
    QTest::newRow("close") << 2;
}

void tst_ChannelDialogs::refusedMove()
{
    QFETCH(int, way);
    MainWidgetFixture main;
    main.createTabs(Names);
    main.tabs()->setCurrentIndex(3);
    SignalLog log;
    log.watch(main.tabs(), SIGNAL(currentChanged(int)));
    log.watch(main.tabs(), SIGNAL(tabMoved(int,int)));
    DialogVisit visit([way](QDialog *dialog) {
        dialog->findChild<QComboBox *>()->setCurrentIndex(1);
        if (way == 0)
            press(dialog, QDialogButtonBox::Cancel);
        else if (way == 1)
            QTest::keyClick(dialog, Qt::Key_Escape);
        else
            dialog->close();
    });
    main.widget->showChangeChannelOrderDialog();
    QVERIFY(visit.isSeen());
    QCOMPARE(main.tabTexts(), Names);
    QVERIFY(log.names().isEmpty());
    QVERIFY(!main.widget->findChild<QDialog *>());
}

void tst_ChannelDialogs::nothingToChoose()
{
    MainWidgetFixture main;
    main.createTabs({QStringLiteral("a"), QStringLiteral("b")});
    main.tabs()->setCurrentIndex(1);
    DialogVisit visit([](QDialog *dialog) {
        QCOMPARE(dialog->findChild<QComboBox *>()->count(), 0);
        QCOMPARE(qobject_cast<ZvScheduleChangeChannelOrderDialog *>(dialog)->selectedIndex(), 0);
        press(dialog, QDialogButtonBox::Ok);
        QCOMPARE(dialog->result(), int(QDialog::Accepted));
    });
    main.widget->showChangeChannelOrderDialog();
    QVERIFY(visit.isSeen());
    QCOMPARE(main.tabTexts(), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    QCOMPARE(main.tabs()->currentIndex(), 1);
    QCOMPARE(indices(main), QStringLiteral("0 1"));
}

void tst_ChannelDialogs::firstTabStays()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    DialogVisit visit([](QDialog *dialog) {
        QCOMPARE(dialog->findChild<QComboBox *>()->count(), Names.size() - 1);
        press(dialog, QDialogButtonBox::Ok);
    });
    main.widget->showChangeChannelOrderDialog();
    QVERIFY(visit.isSeen());
    QCOMPARE(main.tabTexts(), Names);
    QCOMPARE(main.tabs()->currentIndex(), 0);
}

void tst_ChannelDialogs::orderWithoutTabs()
{
    const MainWidgetFixture main;
    DialogVisit visit([](QDialog *) {});
    main.widget->showChangeChannelOrderDialog();
    ZvScheduleMainWidget bare;
    bare.showChangeChannelOrderDialog();
    bare.showCurrentChannelInformation();
    QVERIFY(!visit.isSeen());
}

void tst_ChannelDialogs::widgetDiesBehindTheDialog()
{
    for (const bool ofOrder : {true, false}) {
        MainWidgetFixture main;
        main.createTabs(Names);
        main.tabs()->setCurrentIndex(2);
        ZvScheduleMainWidget *widget = main.widget.get();
        DialogVisit visit([&main](QDialog *) { main.widget.reset(); });
        if (ofOrder)
            widget->showChangeChannelOrderDialog();
        else
            widget->showCurrentChannelInformation();
        QVERIFY(visit.isSeen());
    }
}

void tst_ChannelDialogs::channelDiesBehindTheDialog()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.tabs()->setCurrentIndex(2);
    DialogVisit visit([&main](QDialog *dialog) {
        delete main.area(2);
        press(dialog, QDialogButtonBox::Ok);
    });
    main.widget->showChangeChannelOrderDialog();
    QVERIFY(visit.isSeen());
    QCOMPARE(main.tabTexts().join(QLatin1Char(' ')), QStringLiteral("Hall Foyer Lift"));
}

void tst_ChannelDialogs::renameEndsBeforeTheDialog()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->show();
    main.tabs()->setCurrentIndex(1);
    main.widget->toEditTabName();
    QTest::keyClicks(main.tabs()->findChild<ZvScheduleRenameTabWidget *>(),
                     QStringLiteral("Court"));
    DialogVisit visit([](QDialog *dialog) {
        QVERIFY(labelTexts(dialog).contains(QStringLiteral("ID: 1  Name: Court  Order: #1")));
    });
    main.widget->showChangeChannelOrderDialog();
    QVERIFY(visit.isSeen());
    QCOMPARE(main.tabs()->tabText(1), QStringLiteral("Court"));
}

void tst_ChannelDialogs::selectedIndex()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    const QList<ZvChannel *> targets{main.area(3)->channel(), main.area(1)->channel()};
    const ZvScheduleChangeChannelOrderDialog dialog(main.area(2)->channel(), targets, nullptr,
                                                    Qt::Tool);
    QCOMPARE(dialog.selectedIndex(), 3);
    dialog.findChild<QComboBox *>()->setCurrentIndex(1);
    QCOMPARE(dialog.selectedIndex(), 1);
    QCOMPARE(dialog.windowFlags() & Qt::WindowType_Mask, Qt::WindowFlags(Qt::Tool));
    const ZvScheduleChangeChannelOrderDialog noChannel(nullptr, targets, nullptr);
    QCOMPARE(noChannel.selectedIndex(), 3);
}

void tst_ChannelDialogs::informationDialog()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->show();
    main.tabs()->setCurrentIndex(3);
    ZvChannel *channel = main.area(3)->channel();
    const QDate day = QDate::currentDate().addDays(9);
    for (const ZvScheduleBasicInfo &info :
         {ZvScheduleBasicInfo(Weekday::Monday), ZvScheduleBasicInfo(Weekday::Sunday),
          ZvScheduleBasicInfo(day), ZvScheduleBasicInfo(day.addDays(1)),
          ZvScheduleBasicInfo(day.addDays(2))})
        channel->insertSchedule(info.toSchedule());
    DialogVisit visit([&main](QDialog *dialog) {
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Channel Information"));
        QCOMPARE(dialog->parentWidget(), static_cast<QWidget *>(main.widget.get()));
        QVERIFY(!(dialog->windowFlags() & Qt::WindowContextHelpButtonHint));
        QCOMPARE(rowsOf(dialog),
                 (QStringList{QStringLiteral("Zavo::ZvChannelInformationWidget"),
                              QStringLiteral("space"), QStringLiteral("QDialogButtonBox")}));
        const QWidget *page = dialog->findChild<ZvChannelInformationWidget *>();
        auto *grid = qobject_cast<QGridLayout *>(page->layout());
        const auto *title = qobject_cast<QLabel *>(grid->itemAtPosition(0, 0)->widget());
        QCOMPARE(grid->itemAtPosition(0, 1)->widget(), grid->itemAtPosition(0, 0)->widget());
        QCOMPARE(grid->itemAtPosition(0, 0)->alignment(), Qt::AlignLeft | Qt::AlignTop);
        QCOMPARE(title->text(), QStringLiteral("Channel Information"));
        QCOMPARE(title->styleSheet(), QStringLiteral("QLabel{font-weight: bold;}"));
        QStringList rows;
        for (int row = 1; row <= 6; ++row) {
            const auto label = [grid, row](int column) {
                return qobject_cast<QLabel *>(grid->itemAtPosition(row, column)->widget());
            };
            rows.append(label(0)->text() + label(1)->objectName() + QLatin1Char('=') +
                        label(1)->text());
        }
        QCOMPARE(rows, (QStringList{QStringLiteral("ID:i_id=3"), QStringLiteral("Name:i_name=Lift"),
                                    QStringLiteral("Order#:i_order=3"),
                                    QStringLiteral("Default Schedule:i_default_schedule=1"),
                                    QStringLiteral("Day of Week Schedule:i_dayofweek_schedule=2"),
                                    QStringLiteral("Date Schedule:i_date_schedule=3")}));
        QCOMPARE(dialog->findChild<QDialogButtonBox *>()->standardButtons(),
                 QDialogButtonBox::StandardButtons(QDialogButtonBox::Close));
        press(dialog, QDialogButtonBox::Close);
        QVERIFY(!dialog->isVisible());
    });
    main.widget->showCurrentChannelInformation();
    QVERIFY(visit.isSeen());
    QVERIFY(!main.widget->findChild<QDialog *>());
}

void tst_ChannelDialogs::informationOfANewChannel()
{
    MainWidgetFixture main;
    main.createTabs();
    main.tabs()->setCurrentIndex(7);
    ZvChannelInformationWidget page(main.area(7)->channel(), nullptr);
    QCOMPARE(value(&page, "i_id"), QStringLiteral("7"));
    QCOMPARE(value(&page, "i_name"), QStringLiteral("Ch.7"));
    QCOMPARE(value(&page, "i_order"), QStringLiteral("7"));
    QCOMPARE(value(&page, "i_default_schedule"), QStringLiteral("1"));
    QCOMPARE(value(&page, "i_dayofweek_schedule"), QStringLiteral("0"));
    QCOMPARE(value(&page, "i_date_schedule"), QStringLiteral("0"));
    // Later changes are not followed.
    main.area(7)->changeChannelName(QStringLiteral("New"));
    main.area(7)->createSchedule(ZvScheduleBasicInfo(Weekday::Friday));
    QCOMPARE(value(&page, "i_name"), QStringLiteral("Ch.7"));
    QCOMPARE(value(&page, "i_dayofweek_schedule"), QStringLiteral("0"));
}

void tst_ChannelDialogs::informationCountsWhatIsStored()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    ZvChannel *channel = main.area(0)->channel();
    channel->removeSchedule(ZvScheduleBasicInfo(ZvSchedule::Default).toSchedule());
    QVERIFY(main.area(0)->isCurrentScheduleEnabled());
    const ZvChannelInformationWidget page(channel);
    QCOMPARE(value(&page, "i_default_schedule"), QStringLiteral("0"));
    main.widget->storeCurrentSchedule();
    const ZvChannelInformationWidget stored(channel);
    QCOMPARE(value(&stored, "i_default_schedule"), QStringLiteral("1"));
}

void tst_ChannelDialogs::informationWithoutAChannel()
{
    const ZvChannelInformationWidget page(nullptr, nullptr);
    for (const char *name : {"i_id", "i_name", "i_order", "i_default_schedule",
                             "i_dayofweek_schedule", "i_date_schedule"})
        QCOMPARE(value(&page, name), QString());
}

void tst_ChannelDialogs::informationWithoutTabs()
{
    const MainWidgetFixture main;
    DialogVisit visit([](QDialog *) {});
    main.widget->showCurrentChannelInformation();
    QCoreApplication::processEvents();
    QVERIFY(!visit.isSeen());
}

QTEST_MAIN(tst_ChannelDialogs)
#include "tst_channeldialogs.moc"
