#include "stages/ZvScheduleStageChooserWidget.h"

#include "MessageBoxAnswer.h"
#include "SignalLog.h"
#include "TemporaryDataFolder.h"

#include "ZvFileSystemModel.h"
#include "ZvStagePreview.h"
#include "ZvSystemInfo.h"
#include "stages/StagesNames.h"
#include "stages/ZvScheduleStageListView.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QSplitter>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

using namespace Zavo;
using ZavoTest::MessageBoxAnswer;
using ZavoTest::SignalLog;
using ZavoTest::TemporaryDataFolder;

namespace {

constexpr int patienceMs = 20000; // for a disk that others keep busy

const QString a = QStringLiteral("a.xml");
const QString b = QStringLiteral("b.xml");
const QString c = QStringLiteral("c.xml");
const QString checkBoxStyle = QStringLiteral(
    "QCheckBox::indicator{width: %1px; height: %1px;}QCheckBox::indicator:unchecked{image: "
    "url(':/images/triangle_right.svg');}QCheckBox::indicator:unchecked:hover{image: "
    "url(':/images/triangle_right_hover.svg');}QCheckBox::indicator:checked{image: "
    "url(':/images/triangle_down.svg');}QCheckBox::indicator:checked:hover{image: "
    "url(':/images/triangle_down_hover.svg');}");

} // namespace

/// The chooser with its list and its preview, shown, on a stage folder of its own.
class tst_ZvScheduleStageChooserWidget : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TemporaryDataFolder> m_folder;
    std::unique_ptr<MessageBoxAnswer> m_noBox;
    std::unique_ptr<ZvScheduleStageChooserWidget> m_chooser;
    std::unique_ptr<SignalLog> m_log;
    bool m_scheduleEnabled = true;

    ZvScheduleStageListView *list() const
    {
        return m_chooser->findChild<ZvScheduleStageListView *>();
    }
    ZvStagePreview *preview() const { return m_chooser->findChild<ZvStagePreview *>(); }
    QCheckBox *checkBox() const { return m_chooser->findChild<QCheckBox *>(); }
    QSplitter *splitter() const { return m_chooser->findChild<QSplitter *>(); }
    QMenu *menu() const { return list()->findChild<QMenu *>(); }
    QAction *action(const char *name) const
    {
        return menu()->findChild<QAction *>(QLatin1String(name));
    }
    QStringList names() const
    {
        QStringList result;
        const QAbstractItemModel *model = list()->model();
        for (int row = 0; row < model->rowCount(list()->rootIndex()); ++row)
            result.append(model->index(row, 0, list()->rootIndex()).data().toString());
        return result;
    }
    QModelIndex stage(const QString &name) const
    {
        return list()->model()->index(names().indexOf(name), 0, list()->rootIndex());
    }
    void click(const QString &name, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, modifiers,
                          list()->visualRect(stage(name)).center());
    }
    QString shown() const { return QFileInfo(preview()->stage().filePath()).fileName(); }

private Q_SLOTS:
    void init();
    void cleanup();

    void isLaidOut();
    void listIsSetUp();
    void listsStageFilesOnly();
    void previewFollowsTheSelection();
    void twoStagesAtOnceClearThePreview();
    void theOnlyStageIsShownWhenAllAreSelected();
    void unreadableStageIsNoPreview_data();
    void unreadableStageIsNoPreview();
    void previewGoesWithItsFile();
    void listGetsThePictureOfThePreview();
    void checkBoxFoldsThePreview();
    void setsThePreviewsVisibility();
    void setsThePreviewsSize();
    void standsAnySize();
    void scalesWithTheScreen_data();
    void scalesWithTheScreen();

    void menuHasTwoActions();
    void menuNeedsASelection();
    void menuNeedsASchedule();
    void menuSetsTheCurrentStage();
    void menuClosesWhenItsStageGoes();
    void asksAndTellsForTheList();
};

void tst_ZvScheduleStageChooserWidget::init()
{
    m_noBox = std::make_unique<MessageBoxAnswer>();
    m_folder = std::make_unique<TemporaryDataFolder>();
    for (const QString &name : {a, b, c})
        m_folder->writeStage(name, name);
    m_chooser = std::make_unique<ZvScheduleStageChooserWidget>();
    m_chooser->resize(320, 600);
    m_chooser->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_chooser.get()));
    m_scheduleEnabled = true;
    connect(m_chooser.get(), &ZvScheduleStageChooserWidget::requestIsCurrentScheduleEnabled,
            m_chooser.get(), [this](bool *enabled) { *enabled = m_scheduleEnabled; });
    m_log = std::make_unique<SignalLog>();
    m_log->watch(m_chooser.get(), SIGNAL(clearDescription()));
    m_log->watch(m_chooser.get(), SIGNAL(stageSelectionChanged(ZvStage)));
    m_log->watch(m_chooser.get(), SIGNAL(requestSetToDefaultStage(QString)));
    m_log->watch(m_chooser.get(), SIGNAL(requestRestTimeTable(QString,QList<ZvTime>)));
}

void tst_ZvScheduleStageChooserWidget::cleanup()
{
    m_log.reset();
    m_chooser.reset();
    m_folder.reset();
    m_noBox.reset();
    ZvSystemInfo::setDpiRatioOverride(0);
}

void tst_ZvScheduleStageChooserWidget::isLaidOut()
{
    QVERIFY(m_chooser->widgetResizable());
    QCOMPARE(m_chooser->horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QCOMPARE(m_chooser->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    auto *layout = qobject_cast<QVBoxLayout *>(m_chooser->widget()->layout());
    QVERIFY(layout);
    QCOMPARE(layout->itemAt(0)->widget(), checkBox());
    QCOMPARE(layout->itemAt(1)->widget(), splitter());
    QCOMPARE(checkBox()->text(), QStringLiteral("Thumbnail of Stage"));
    QVERIFY(checkBox()->isChecked());
    QCOMPARE(checkBox()->styleSheet(), checkBoxStyle.arg(16));
    QCOMPARE(splitter()->orientation(), Qt::Vertical);
    QVERIFY(!splitter()->childrenCollapsible());
    QCOMPARE(splitter()->count(), 2);
    QCOMPARE(splitter()->widget(0), preview());
    QCOMPARE(preview()->minimumSize(), QSize(240, 135));
    QCOMPARE(preview()->frameStyle(), 6);
    auto *pane = qobject_cast<QVBoxLayout *>(splitter()->widget(1)->layout());
    QVERIFY(pane);
    QCOMPARE(pane->contentsMargins(), QMargins());
    auto *title = qobject_cast<QLabel *>(pane->itemAt(0)->widget());
    QVERIFY(title);
    QCOMPARE(title->text(), QStringLiteral("Stage List"));
    QCOMPARE(title->styleSheet(), QStringLiteral("margin-top: 5px;"));
    QCOMPARE(pane->itemAt(1)->widget(), list());
}

void tst_ZvScheduleStageChooserWidget::listIsSetUp()
{
    const auto *model = qobject_cast<ZvFileSystemModel *>(list()->model());
    QVERIFY(model);
    QCOMPARE(model->QObject::parent(), list());
    QCOMPARE(model->nameFilters(),
             QStringList({QStringLiteral("*.xml"), QStringLiteral("*.zstg")}));
    QCOMPARE(model->filter(), QDir::Files | QDir::NoDotAndDotDot);
    QCOMPARE(model->exclusionNamePattern(), QStringList(QStringLiteral(".*\\._d_\\..*")));
    QCOMPARE(model->rootPath(), m_folder->stageFolder());
    QCOMPARE(list()->rootIndex(), model->rootIndex());
    QCOMPARE(list()->viewMode(), QListView::ListMode);
    QVERIFY(list()->isWrapping());
    QCOMPARE(list()->resizeMode(), QListView::Adjust);
    QVERIFY(list()->wordWrap());
    QCOMPARE(list()->minimumSize(), QSize(240, 180));
    QCOMPARE(list()->selectionMode(), QAbstractItemView::ExtendedSelection);
    QVERIFY(list()->dragEnabled());
    QCOMPARE(list()->dragDropMode(), QAbstractItemView::DragDrop);
    QVERIFY(list()->showDropIndicator());
    QCOMPARE(list()->contextMenuPolicy(), Qt::CustomContextMenu);
}

void tst_ZvScheduleStageChooserWidget::listsStageFilesOnly()
{
    const QByteArray content("x");
    for (const char *name : {"d.zstg", "e.png", "f.xml.bak", "a._d_.xml", "a._d_.b.xml", "xml",
                             "sub/g.xml", "folder.xml/h.xml", ".hidden.xml", "_d_.xml"})
        m_folder->write(QStringLiteral("stage/") + QLatin1String(name), content);
    const QStringList expected{QStringLiteral("_d_.xml"), a, b, c, QStringLiteral("d.zstg")};
    QTRY_COMPARE_WITH_TIMEOUT(names().size(), expected.size(), patienceMs);
    QStringList sorted = names();
    sorted.sort();
    QCOMPARE(sorted, expected);
}

void tst_ZvScheduleStageChooserWidget::previewFollowsTheSelection()
{
    QVERIFY(preview()->stage().isEmpty());
    click(a);
    QCOMPARE(shown(), a);
    QVERIFY(!preview()->stage().isEmpty());
    click(b);
    QCOMPARE(shown(), b);
    // Adding one to a selection shows the one that came, although two are selected.
    click(c, Qt::ControlModifier);
    QCOMPARE(list()->selectionModel()->selectedIndexes().size(), 2);
    QCOMPARE(shown(), c);
    QCOMPARE(m_log->names(), QStringList({QStringLiteral("stageSelectionChanged"),
                                          QStringLiteral("stageSelectionChanged"),
                                          QStringLiteral("stageSelectionChanged")}));
    // Taking one away adds none.
    click(c, Qt::ControlModifier);
    QVERIFY(preview()->stage().isEmpty());
    QTest::keyClick(list(), Qt::Key_Home);
    QCOMPARE(shown(), a);
    QTest::keyClick(list(), Qt::Key_Down);
    QCOMPARE(shown(), b);
}

void tst_ZvScheduleStageChooserWidget::twoStagesAtOnceClearThePreview()
{
    click(a);
    QCOMPARE(shown(), a);
    click(c, Qt::ShiftModifier);
    QCOMPARE(list()->selectionModel()->selectedIndexes().size(), 3);
    QVERIFY(preview()->stage().isEmpty());
    click(a);
    QVERIFY(preview()->stage().isEmpty());
    click(b);
    QTest::keyClick(list(), Qt::Key_A, Qt::ControlModifier);
    QVERIFY(preview()->stage().isEmpty());
    QCOMPARE(m_log->names().last(), QStringLiteral("clearDescription"));
    list()->clearSelection();
    QItemSelection apart;
    apart.select(stage(a), stage(a));
    apart.select(stage(c), stage(c));
    list()->selectionModel()->select(apart, QItemSelectionModel::ClearAndSelect);
    QVERIFY(preview()->stage().isEmpty());
}

void tst_ZvScheduleStageChooserWidget::theOnlyStageIsShownWhenAllAreSelected()
{
    QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("stage/b.xml"))));
    QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("stage/c.xml"))));
    QTRY_COMPARE_WITH_TIMEOUT(names(), QStringList(a), patienceMs);
    QTest::keyClick(list(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(shown(), a);
}

void tst_ZvScheduleStageChooserWidget::unreadableStageIsNoPreview_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no stage") << QByteArray("<x/>");
    QTest::newRow("noise") << QByteArray("\0\x01\xff", 3);
}

void tst_ZvScheduleStageChooserWidget::unreadableStageIsNoPreview()
{
    QFETCH(QByteArray, content);
    m_folder->write(QStringLiteral("stage/bad.xml"), content);
    QTRY_COMPARE_WITH_TIMEOUT(names().size(), 4, patienceMs);
    click(a);
    click(QStringLiteral("bad.xml"));
    QVERIFY(preview()->stage().isEmpty());
    QCOMPARE(m_log->names().last(), QStringLiteral("clearDescription"));
    click(a);
    // The file goes, and the list does not know it yet.
    QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("stage/b.xml"))));
    click(b);
    QVERIFY(preview()->stage().isEmpty());
}

void tst_ZvScheduleStageChooserWidget::previewGoesWithItsFile()
{
    click(b);
    QCOMPARE(shown(), b);
    QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("stage/b.xml"))));
    QTRY_VERIFY_WITH_TIMEOUT(preview()->stage().isEmpty(), patienceMs);
    QVERIFY(!list()->selectionModel()->hasSelection());
}

void tst_ZvScheduleStageChooserWidget::listGetsThePictureOfThePreview()
{
    QImage *none = nullptr;
    Q_EMIT list()->requestGetImage(&none);
    QVERIFY(!none);
    click(a);
    QImage *image = nullptr;
    Q_EMIT list()->requestGetImage(&image);
    const std::unique_ptr<QImage> owned(image);
    QVERIFY(owned && !owned->isNull());
}

void tst_ZvScheduleStageChooserWidget::checkBoxFoldsThePreview()
{
    QTest::mouseClick(checkBox(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(8, checkBox()->height() / 2));
    QVERIFY(!checkBox()->isChecked());
    QVERIFY(!preview()->isVisible());
    QVERIFY(!m_chooser->isPreviewVisible());
    QCoreApplication::processEvents();
    const int folded = list()->height();
    QTest::keyClick(checkBox(), Qt::Key_Space);
    QVERIFY(m_chooser->isPreviewVisible());
    QCoreApplication::processEvents();
    QVERIFY(list()->height() <= folded - 135);
}

void tst_ZvScheduleStageChooserWidget::setsThePreviewsVisibility()
{
    m_chooser->setPreviewVisible(false);
    QVERIFY(!checkBox()->isChecked());
    QVERIFY(!m_chooser->isPreviewVisible());
    m_chooser->setPreviewVisible(true);
    QVERIFY(checkBox()->isChecked());
    QVERIFY(m_chooser->isPreviewVisible());
    // What is hidden shows no preview, whatever the box says.
    m_chooser->hide();
    QVERIFY(!m_chooser->isPreviewVisible());
    QVERIFY(checkBox()->isChecked());
    m_chooser->setPreviewVisible(false);
    m_chooser->show();
    QVERIFY(!m_chooser->isPreviewVisible());
}

void tst_ZvScheduleStageChooserWidget::setsThePreviewsSize()
{
    m_chooser->resize(418, 900);
    QCoreApplication::processEvents();
    splitter()->setSizes({600, 200});
    QVERIFY(QMetaObject::invokeMethod(m_chooser.get(), "setPreviewSizeToDefault"));
    const int height = int(preview()->width() * 9.0 * 0.0625);
    QVERIFY(height > 200);
    QVERIFY2(qAbs(preview()->height() - height) <= splitter()->handleWidth(),
             qPrintable(QString::number(preview()->height())));
    QVERIFY(list()->height() > 400);
}

void tst_ZvScheduleStageChooserWidget::standsAnySize()
{
    m_chooser->setPreviewVisible(false);
    m_chooser->setPreviewSizeToDefault();
    m_chooser->setPreviewVisible(true);
    for (const QSize &size : {QSize(1, 1), QSize(60, 900), QSize(3000, 60)}) {
        m_chooser->resize(size);
        QCoreApplication::processEvents();
        m_chooser->setPreviewSizeToDefault();
        QVERIFY(preview()->width() >= 240 && preview()->height() >= 135);
        QVERIFY(list()->width() >= 240 && list()->height() >= 180);
    }
}

void tst_ZvScheduleStageChooserWidget::scalesWithTheScreen_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QString>("indicator");
    QTest::addColumn<int>("icon");
    QTest::addColumn<QSize>("smallest");
    QTest::newRow("125 %") << 1.25 << QStringLiteral("20") << 20 << QSize(300, 168);
    QTest::newRow("150 %") << 1.5 << QStringLiteral("24") << 24 << QSize(360, 202);
    QTest::newRow("odd") << 1.3 << QStringLiteral("20.8") << 20 << QSize(312, 175);
    QTest::newRow("200 %") << 2.0 << QStringLiteral("32") << 32 << QSize(480, 270);
}

void tst_ZvScheduleStageChooserWidget::scalesWithTheScreen()
{
    QFETCH(double, ratio);
    QCOMPARE(list()->iconSize(), QSize(16, 16));
    ZvSystemInfo::setDpiRatioOverride(ratio);
    m_chooser->resize(m_chooser->width() + 1, m_chooser->height());
    QTEST(
        checkBox()->styleSheet().section(QStringLiteral("px"), 0, 0).section(QLatin1Char(' '), -1),
        "indicator");
    QFETCH(QString, indicator);
    QCOMPARE(checkBox()->styleSheet(), checkBoxStyle.arg(indicator));
    QFETCH(int, icon);
    QCOMPARE(list()->iconSize(), QSize(icon, icon));
    QTEST(preview()->minimumSize(), "smallest");
    QCOMPARE(preview()->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    // Without a change nothing is set anew.
    list()->setIconSize({5, 5});
    m_chooser->resize(m_chooser->width() + 1, m_chooser->height());
    QCOMPARE(list()->iconSize(), QSize(5, 5));
    ZvSystemInfo::setDpiRatioOverride(1.0);
    m_chooser->hide();
    m_chooser->show();
    QCOMPARE(preview()->minimumSize(), QSize(240, 135));
    QCOMPARE(list()->iconSize(), QSize(16, 16));
}

void tst_ZvScheduleStageChooserWidget::menuHasTwoActions()
{
    QStringList texts;
    const QList<QAction *> actions = menu()->actions();
    for (const QAction *each : actions)
        texts << each->objectName() << each->text();
    QCOMPARE(texts,
             QStringList({QStringLiteral("Action_Set_As_Default_Stage"),
                          QStringLiteral("Set As Default Stage"),
                          QStringLiteral("Action_Set_Switching_Interval_Default_Stage"),
                          QStringLiteral("Set the switching interval as Default Stage...")}));
}

void tst_ZvScheduleStageChooserWidget::menuNeedsASelection()
{
    const auto enabled = [this] {
        Q_EMIT menu()->aboutToShow();
        return action(StagesName::SetAsDefaultStage)->isEnabled() &&
               action(StagesName::SetSwitchingInterval)->isEnabled();
    };
    QVERIFY(!enabled());
    QVERIFY(menu()->isEnabled());
    click(a);
    QVERIFY(enabled());
    QTest::keyClick(list(), Qt::Key_A, Qt::ControlModifier);
    QVERIFY(enabled());
    list()->clearSelection();
    QVERIFY(!enabled());
}

void tst_ZvScheduleStageChooserWidget::menuNeedsASchedule()
{
    click(a);
    m_scheduleEnabled = false;
    Q_EMIT menu()->aboutToShow();
    QVERIFY(!menu()->isEnabled());
    m_scheduleEnabled = true;
    Q_EMIT menu()->aboutToShow();
    QVERIFY(menu()->isEnabled());
    // Nobody answers.
    m_chooser->disconnect(m_chooser.get());
    Q_EMIT menu()->aboutToShow();
    QVERIFY(!menu()->isEnabled());
}

void tst_ZvScheduleStageChooserWidget::menuSetsTheCurrentStage()
{
    action(StagesName::SetAsDefaultStage)->trigger();
    QCOMPARE(m_log->count(QStringLiteral("requestSetToDefaultStage")), 0);
    click(a);
    click(b, Qt::ControlModifier);
    m_log->clear();
    QTimer::singleShot(0, menu(), [this] {
        QTest::mouseClick(menu(), Qt::LeftButton, Qt::NoModifier,
                          menu()->actionGeometry(action(StagesName::SetAsDefaultStage)).center());
    });
    // A right press on a selected stage keeps the selection.
    const QPoint place = list()->visualRect(stage(b)).center();
    QTest::mouseClick(list()->viewport(), Qt::RightButton, Qt::NoModifier, place);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                            list()->viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(list()->viewport(), &event);
    QCOMPARE(m_log->names(), QStringList(QStringLiteral("requestSetToDefaultStage")));
    QCOMPARE(m_log->arguments(0), QVariantList{b});
}

void tst_ZvScheduleStageChooserWidget::menuClosesWhenItsStageGoes()
{
    click(b);
    bool wasOpen = false;
    QTimer::singleShot(0, menu(), [&] {
        wasOpen = menu()->isVisible();
        QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("stage/b.xml"))));
    });
    QTimer::singleShot(patienceMs, menu(), SLOT(close()));
    QElapsedTimer timer;
    timer.start();
    Q_EMIT list()->customContextMenuRequested(list()->visualRect(stage(b)).center());
    QVERIFY(wasOpen);
    QVERIFY(timer.elapsed() < patienceMs);
    QCOMPARE(m_log->count(QStringLiteral("requestSetToDefaultStage")), 0);
}

void tst_ZvScheduleStageChooserWidget::asksAndTellsForTheList()
{
    const QList<ZvTime> times{ZvTime(QTime(1, 0), QTime(2, 0), a)};
    Q_EMIT list()->requestResetTimeTable(b, times);
    Q_EMIT list()->requestSetDefaultStageName(c);
    QCOMPARE(m_log->names(), QStringList({QStringLiteral("requestRestTimeTable"),
                                          QStringLiteral("requestSetToDefaultStage")}));
    QCOMPARE(m_log->arguments(0).at(0).toString(), b);
    QCOMPARE(m_log->arguments(0).at(1).value<QList<ZvTime>>(), times);
    QCOMPARE(m_log->arguments(1), QVariantList{c});
    bool enabled = false;
    Q_EMIT list()->requestIsCurrentScheduleEnabled(&enabled);
    QVERIFY(enabled);
}

QTEST_MAIN(tst_ZvScheduleStageChooserWidget)
#include "tst_zvschedulestagechooserwidget.moc"
