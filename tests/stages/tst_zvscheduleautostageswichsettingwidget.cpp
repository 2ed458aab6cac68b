#include "stages/ZvScheduleAutoStageSwichSettingWidget.h"

#include "MessageBoxAnswer.h"
#include "SignalLog.h"
#include "TemporaryDataFolder.h"

#include "ZvEditorUserConfig.h"
#include "stages/StagesNames.h"
#include "stages/ZvScheduleStageListView.h"

#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QTimeEdit>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

using namespace Zavo;
using ZavoTest::MessageBoxAnswer;
using ZavoTest::SignalLog;
using ZavoTest::TemporaryDataFolder;

namespace {

const QTime midnight(0, 0);
const QTime endOfDay(23, 59, 59, 999);
const QString a = QStringLiteral("a.xml");
const QString b = QStringLiteral("b.xml");

QString keyOf(const char *key)
{
    return QStringLiteral("ZvSchedulerAutoStageSwichSettingWidget/") + QLatin1String(key);
}

} // namespace

/// The settings page by itself, and in the dialog of the stage list.
class tst_ZvScheduleAutoStageSwichSettingWidget : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TemporaryDataFolder> m_folder;
    std::unique_ptr<MessageBoxAnswer> m_boxes;
    std::unique_ptr<ZvScheduleAutoStageSwichSettingWidget> m_page;
    std::unique_ptr<SignalLog> m_log;
    std::unique_ptr<ZvScheduleStageListView> m_list;

    void showPage()
    {
        m_page = std::make_unique<ZvScheduleAutoStageSwichSettingWidget>();
        m_log = std::make_unique<SignalLog>();
        m_log->watch(m_page.get(), SIGNAL(canceled()));
        m_log->watch(m_page.get(), SIGNAL(requestExecute(int,QTime,QTime)));
        m_page->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_page.get()));
    }
    void showList()
    {
        m_list = std::make_unique<ZvScheduleStageListView>();
        m_log = std::make_unique<SignalLog>();
        m_log->watch(m_list.get(), SIGNAL(requestResetTimeTable(QString,QList<ZvTime>)));
        m_list->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_list.get()));
        m_list->setCurrentIndex(m_list->model()->index(0, 0, m_list->rootIndex()));
    }
    void openDialog()
    {
        m_list->findChild<QAction *>(QLatin1String(StagesName::SetSwitchingInterval))->trigger();
        QVERIFY(dialog() && QTest::qWaitForWindowExposed(dialog()));
    }
    QDialog *dialog() const { return m_list->findChild<QDialog *>(); }
    QWidget *page() const { return m_page ? static_cast<QWidget *>(m_page.get()) : dialog(); }
    QSpinBox *interval() const { return page()->findChild<QSpinBox *>(); }
    QTimeEdit *from() const { return page()->findChildren<QTimeEdit *>().at(0); }
    QTimeEdit *to() const { return page()->findChildren<QTimeEdit *>().at(1); }
    QCheckBox *at24() const { return page()->findChild<QCheckBox *>(); }
    QPushButton *button(const char *text) const
    {
        const QList<QPushButton *> buttons = page()->findChildren<QPushButton *>();
        for (QPushButton *each : buttons) {
            if (each->text() == QLatin1String(text))
                return each;
        }
        return nullptr;
    }
    void click(const char *text) const { QTest::mouseClick(button(text), Qt::LeftButton); }
    void clickAt24() const
    {
        QTest::mouseClick(at24(), Qt::LeftButton, Qt::NoModifier, QPoint(8, at24()->height() / 2));
    }
    void store(int seconds, const QVariant &fromTime, const QVariant &toTime) const
    {
        m_folder->settings()->setValue(keyOf("Interval"), seconds);
        m_folder->settings()->setValue(keyOf("FromTime"), fromTime);
        m_folder->settings()->setValue(keyOf("ToTime"), toTime);
    }

private Q_SLOTS:
    void init();
    void cleanup();

    void asksInWords();
    void showsTheDefaults();
    void limitsWhatIsTyped();
    void checkBoxTakesTheEndOfTheRange();
    void executeTellsAndStores();
    void executeTellsARangeThatEndsEarlier();
    void cancelStoresNothing();
    void showsWhatWasStored_data();
    void showsWhatWasStored();
    void standsDamagedSettings();
    void standsNullSettings();
    void needsAnObjectNameToStore();

    void dialogIsModalAndDiesWhenClosed();
    void dialogExecutesForItsStage();
    void dialogIsCancelledByKey();
    void dialogDoesNotTakeTheNextStage();
    void dialogShowsItsFailures();
    void listDiesUnderTheDialogsFailure();
};

void tst_ZvScheduleAutoStageSwichSettingWidget::init()
{
    m_folder = std::make_unique<TemporaryDataFolder>();
    m_folder->writeStage(a);
    m_folder->writeStage(b);
    m_boxes = std::make_unique<MessageBoxAnswer>();
}

void tst_ZvScheduleAutoStageSwichSettingWidget::cleanup()
{
    m_log.reset();
    m_page.reset();
    m_list.reset();
    m_boxes.reset();
    m_folder.reset();
}

void tst_ZvScheduleAutoStageSwichSettingWidget::asksInWords()
{
    showPage();
    QCOMPARE(m_page->objectName(), QStringLiteral("ZvSchedulerAutoStageSwichSettingWidget"));
    QStringList texts;
    const QList<QLabel *> labels = m_page->findChildren<QLabel *>();
    for (const QLabel *label : labels)
        texts.append(label->text());
    QCOMPARE(texts, QStringList(
                        {QStringLiteral("You can set the schedule to switch the default stage at "
                                        "regular time intervals.\nThe same content as the selected "
                                        "stage will be created with a different name."),
                         QStringLiteral("Note: All stages already set to the timetable will be "
                                        "deleted."),
                         QStringLiteral("Switching Interval"), QStringLiteral("Seconds"),
                         QStringLiteral("From"), QStringLiteral(" To")}));
    QVERIFY(labels.at(0)->wordWrap());
    QVERIFY(labels.at(1)->wordWrap());
    QVERIFY(labels.at(1)->font().italic());
    QCOMPARE(labels.at(1)->font().weight(), 75);
    QCOMPARE(m_page->findChild<QGroupBox *>()->title(), QStringLiteral("Time Range"));
    QCOMPARE(at24()->text(), QStringLiteral("24 o'clock"));
    QVERIFY(button("Execute") && button("Cancel"));
    QVERIFY(button("Execute")->x() < button("Cancel")->x());
    QVERIFY(qobject_cast<QVBoxLayout *>(m_page->layout()));
    // Top to bottom, in this order.
    const auto y = [this](const QWidget *widget) {
        return widget->mapTo(m_page.get(), QPoint()).y();
    };
    QVERIFY(y(labels.at(0)) < y(labels.at(1)));
    QVERIFY(y(labels.at(1)) < y(interval()));
    QVERIFY(y(interval()) < y(from()));
    QVERIFY(y(from()) < y(button("Execute")));
}

void tst_ZvScheduleAutoStageSwichSettingWidget::showsTheDefaults()
{
    showPage();
    QCOMPARE(interval()->value(), 300);
    QCOMPARE(interval()->minimum(), 10);
    QCOMPARE(interval()->maximum(), 43200);
    QCOMPARE(interval()->singleStep(), 60);
    QVERIFY(interval()->alignment() & Qt::AlignRight);
    for (const QTimeEdit *edit : {from(), to()})
        QCOMPARE(edit->displayFormat(), QStringLiteral("hh:mm:ss"));
    QCOMPARE(from()->time(), midnight);
    QCOMPARE(from()->minimumTime(), midnight);
    QCOMPARE(from()->maximumTime(), QTime(23, 59));
    QCOMPARE(to()->time(), QTime(23, 59, 59));
    QCOMPARE(to()->minimumTime(), QTime(0, 1));
    QCOMPARE(to()->maximumTime(), QTime(23, 59, 59));
    QVERIFY(at24()->isChecked());
    QVERIFY(from()->isEnabled());
    QVERIFY(!to()->isEnabled());
}

void tst_ZvScheduleAutoStageSwichSettingWidget::limitsWhatIsTyped()
{
    showPage();
    interval()->setFocus();
    interval()->selectAll();
    QTest::keyClicks(interval(), QStringLiteral("5"));
    click("Execute");
    QVERIFY(m_log->arguments(0).at(0).toInt() >= 10);
    showPage();
    interval()->selectAll();
    QTest::keyClicks(interval(), QStringLiteral("99999"));
    click("Execute");
    QCOMPARE(m_log->arguments(0).at(0).toInt(), 9999);
    showPage();
    QTest::keyClick(interval(), Qt::Key_Up);
    QCOMPARE(interval()->value(), 10059);
}

void tst_ZvScheduleAutoStageSwichSettingWidget::checkBoxTakesTheEndOfTheRange()
{
    showPage();
    clickAt24();
    QVERIFY(!at24()->isChecked());
    QVERIFY(to()->isEnabled());
    clickAt24();
    QVERIFY(!to()->isEnabled());
}

void tst_ZvScheduleAutoStageSwichSettingWidget::executeTellsAndStores()
{
    showPage();
    interval()->setValue(720);
    from()->setTime(QTime(6, 30, 15));
    click("Execute");
    QCOMPARE(m_log->names(), QStringList(QStringLiteral("requestExecute")));
    QCOMPARE(m_log->arguments(0), QVariantList({720, QTime(6, 30, 15), endOfDay}));
    QSettings *settings = m_folder->settings();
    QCOMPARE(settings->childGroups(),
             QStringList(QStringLiteral("ZvSchedulerAutoStageSwichSettingWidget")));
    QCOMPARE(settings->value(keyOf("Interval")).toInt(), 720);
    QCOMPARE(settings->value(keyOf("FromTime")).toTime(), QTime(6, 30, 15));
    QCOMPARE(settings->value(keyOf("ToTime")).toTime(), endOfDay);
    QCOMPARE(settings->allKeys().size(), 3);
    // As it comes back from the file.
    settings->sync();
    const QSettings afresh(settings->fileName(), QSettings::IniFormat);
    QCOMPARE(afresh.value(keyOf("ToTime")).toTime(), endOfDay);
}

void tst_ZvScheduleAutoStageSwichSettingWidget::executeTellsARangeThatEndsEarlier()
{
    showPage();
    clickAt24();
    to()->setTime(QTime(20, 0));
    click("Execute");
    QCOMPARE(m_log->arguments(0), QVariantList({300, midnight, QTime(20, 0)}));
    showPage();
    QCOMPARE(to()->time(), QTime(20, 0));
    QVERIFY(to()->isEnabled());
    QVERIFY(!at24()->isChecked());
}

void tst_ZvScheduleAutoStageSwichSettingWidget::cancelStoresNothing()
{
    showPage();
    interval()->setValue(720);
    click("Cancel");
    QCOMPARE(m_log->names(), QStringList(QStringLiteral("canceled")));
    QCOMPARE(m_folder->settings()->allKeys(), QStringList());
    // Without a parent there is nothing to close.
    QVERIFY(m_page->isVisible());
}

void tst_ZvScheduleAutoStageSwichSettingWidget::showsWhatWasStored_data()
{
    QTest::addColumn<int>("interval");
    QTest::addColumn<QTime>("from");
    QTest::addColumn<QTime>("to");
    QTest::addColumn<int>("shownInterval");
    QTest::addColumn<QTime>("shownFrom");
    QTest::addColumn<QTime>("shownTo");
    QTest::addColumn<bool>("at24");
    const QTime eight(8, 0);
    const QTime lastSecond(23, 59, 59);
    QTest::newRow("range") << 600 << eight << QTime(9, 0) << 600 << eight << QTime(9, 0) << false;
    QTest::newRow("to 24 o'clock")
        << 600 << eight << endOfDay << 600 << eight << lastSecond << true;
    QTest::newRow("to the last second")
        << 600 << eight << lastSecond << 600 << eight << lastSecond << false;
    QTest::newRow("as long as the interval")
        << 600 << eight << QTime(8, 10) << 600 << eight << QTime(8, 10) << false;
    QTest::newRow("shorter than the interval is empty")
        << 601 << eight << QTime(8, 10) << 601 << eight << eight << false;
    QTest::newRow("wrong way is empty")
        << 600 << QTime(9, 0) << eight << 600 << QTime(9, 0) << QTime(9, 0) << false;
    QTest::newRow("near 24 o'clock is empty")
        << 600 << QTime(23, 55) << endOfDay << 600 << QTime(23, 55) << QTime(23, 55) << false;
    QTest::newRow("no interval") << 0 << eight << QTime(9, 0) << 10 << eight << QTime(9, 0)
                                 << false;
    QTest::newRow("below no interval")
        << -5 << eight << eight.addSecs(1) << 10 << eight << eight.addSecs(1) << false;
    QTest::newRow("huge interval")
        << 99999 << midnight << endOfDay << 43200 << midnight << QTime(0, 1) << false;
}

void tst_ZvScheduleAutoStageSwichSettingWidget::showsWhatWasStored()
{
    QFETCH(int, interval);
    QFETCH(QTime, from);
    QFETCH(QTime, to);
    store(interval, from, to);
    showPage();
    QTEST(this->interval()->value(), "shownInterval");
    QTEST(this->from()->time(), "shownFrom");
    QTEST(this->to()->time(), "shownTo");
    QTEST(at24()->isChecked(), "at24");
    QCOMPARE(this->to()->isEnabled(), !at24()->isChecked());
}

void tst_ZvScheduleAutoStageSwichSettingWidget::standsDamagedSettings()
{
    store(600, QStringLiteral("noon"), QByteArray("\xff\x00", 2));
    m_folder->settings()->setValue(keyOf("Interval"), QStringLiteral("often"));
    showPage();
    QCOMPARE(interval()->value(), 10);
    QCOMPARE(from()->time(), midnight);
    QVERIFY(at24()->isChecked());
    QVERIFY(!to()->isEnabled());
}

void tst_ZvScheduleAutoStageSwichSettingWidget::standsNullSettings()
{
    ZvEditorUserConfig::setSettings(nullptr);
    showPage();
    QCOMPARE(interval()->value(), 300);
    QVERIFY(at24()->isChecked());
    click("Execute");
    QCOMPARE(m_log->arguments(0), QVariantList({300, midnight, endOfDay}));
    ZvEditorUserConfig::setSettings(m_folder->settings());
    QCOMPARE(m_folder->settings()->allKeys(), QStringList());
}

void tst_ZvScheduleAutoStageSwichSettingWidget::needsAnObjectNameToStore()
{
    showPage();
    m_page->setObjectName(QString());
    click("Execute");
    QCOMPARE(m_log->names(), QStringList(QStringLiteral("requestExecute")));
    QCOMPARE(m_folder->settings()->allKeys(), QStringList());
}

void tst_ZvScheduleAutoStageSwichSettingWidget::dialogIsModalAndDiesWhenClosed()
{
    showList();
    openDialog();
    const QPointer<QDialog> first(dialog());
    QVERIFY(first->isModal());
    QVERIFY(!(first->windowFlags() & Qt::WindowContextHelpButtonHint));
    QVERIFY(first->testAttribute(Qt::WA_DeleteOnClose));
    QCOMPARE(first->parent(), m_list.get());
    auto *layout = qobject_cast<QVBoxLayout *>(first->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 0);
    QVERIFY(qobject_cast<ZvScheduleAutoStageSwichSettingWidget *>(layout->itemAt(0)->widget()));
    // A second one is not opened over it.
    openDialog();
    QCOMPARE(m_list->findChildren<QDialog *>().size(), 1);
    click("Cancel");
    QVERIFY(!first->isVisible());
    // The closed one may still be there when the next is wanted.
    QMetaObject::invokeMethod(m_list.get(), "showAutomaticallySwitchDialog");
    QTRY_VERIFY(!first);
    QVERIFY(dialog() && dialog()->isVisible());
    QCOMPARE(m_log->names(), QStringList());
    QCOMPARE(m_folder->names(QStringLiteral("stage")), QStringList({a, b}));
}

void tst_ZvScheduleAutoStageSwichSettingWidget::dialogExecutesForItsStage()
{
    showList();
    openDialog();
    interval()->setValue(40000);
    click("Execute");
    QTRY_VERIFY(!dialog());
    QCOMPARE(m_log->count(QStringLiteral("requestResetTimeTable")), 1);
    QCOMPARE(m_log->arguments(0).at(0).toString(), a);
    const QString copy = QStringLiteral("a._d_.xml");
    const QList<ZvTime> expected{ZvTime(QTime(11, 6, 40), QTime(22, 13, 20), copy)};
    QCOMPARE(m_log->arguments(0).at(1).value<QList<ZvTime>>(), expected);
    QCOMPARE(m_folder->names(QStringLiteral("stage")), QStringList({copy, a, b}));
    // The next time it asks with what was chosen.
    openDialog();
    QCOMPARE(interval()->value(), 40000);
}

void tst_ZvScheduleAutoStageSwichSettingWidget::dialogIsCancelledByKey()
{
    showList();
    openDialog();
    QTest::keyClick(interval(), Qt::Key_Escape);
    QTRY_VERIFY(!dialog());
    QCOMPARE(m_log->names(), QStringList());
    openDialog();
    interval()->setFocus();
    QTest::keyClick(interval(), Qt::Key_Return);
    QTRY_VERIFY(!dialog());
    QCOMPARE(m_log->count(QStringLiteral("requestResetTimeTable")), 1);
}

// The file goes while the dialog is open; the list makes its neighbour the current one.
void tst_ZvScheduleAutoStageSwichSettingWidget::dialogDoesNotTakeTheNextStage()
{
    showList();
    openDialog();
    QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("stage/a.xml"))));
    QTRY_COMPARE(m_list->model()->rowCount(m_list->rootIndex()), 1);
    m_boxes->expect(QMessageBox::Ok)
        .title(QStringLiteral("Error"))
        .text(QStringLiteral("Failed to create the file for automatic generation.\n"
                             "Processing was interrupted."));
    click("Execute");
    QVERIFY(m_boxes->isDone());
    QTRY_VERIFY(!dialog());
    QCOMPARE(m_log->names(), QStringList());
    QCOMPARE(m_folder->names(QStringLiteral("stage")), QStringList(b));
}

void tst_ZvScheduleAutoStageSwichSettingWidget::dialogShowsItsFailures()
{
    m_folder->makeFolder(QStringLiteral("stage/a._d_.xml"));
    showList();
    openDialog();
    m_boxes->expect(QMessageBox::Ok).whileShown([this](const QMessageBox *box) {
        QCOMPARE(box->parentWidget(), dialog());
    });
    click("Execute");
    QVERIFY(m_boxes->isDone());
    QTRY_VERIFY(!dialog());
    QCOMPARE(m_log->names(), QStringList());
}

void tst_ZvScheduleAutoStageSwichSettingWidget::listDiesUnderTheDialogsFailure()
{
    m_folder->makeFolder(QStringLiteral("stage/a._d_.xml"));
    showList();
    openDialog();
    QTimer::singleShot(0, this, [this] {
        m_log.reset();
        m_list.reset();
    });
    QPushButton *execute = button("Execute");
    execute->click();
    QVERIFY(!m_list);
}

QTEST_MAIN(tst_ZvScheduleAutoStageSwichSettingWidget)
#include "tst_zvscheduleautostageswichsettingwidget.moc"
