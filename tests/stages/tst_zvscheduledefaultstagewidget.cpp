#include "stages/ZvScheduleDefaultStageWidget.h"

#include "DragGesture.h"
#include "MessageBoxAnswer.h"
#include "SignalLog.h"
#include "TemporaryDataFolder.h"
#include "ZvEditorCommon.h"
#include "ZvSystemInfo.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QtTest>

using namespace Zavo;
using ZavoTest::DragGesture;
using ZavoTest::ExpectedBox;
using ZavoTest::MessageBoxAnswer;
using ZavoTest::SignalLog;
using ZavoTest::TemporaryDataFolder;

namespace {

const QString emptyText = QStringLiteral("None - Drop stage here...");
const QString baseStyle =
    QStringLiteral("border: 1px solid gray;margin-left: 5px;background-color: whitesmoke;");
const QString hoverStyle =
    QStringLiteral("border-color: cyan; border-width: 2px; padding-left: -1px;");
const QString namedStyle = QStringLiteral("color: black; font-style: normal;");
const QString unnamedStyle = QStringLiteral("color: gray; font-style: italic;");

} // namespace

class tst_ZvScheduleDefaultStageWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isEmptyAtFirst();
    void isLaidOut();
    void showsName();
    void clearsName();
    void reportsAChangeOnly();
    void comparesNamesWithCase();
    void showsAnyNameAsItStands();
    void setsNameWithUndo();

    void tellsThatABoxCannotChooseAStage();
    void standsItsDeathUnderTheMessage();
    void uncheckingClearsTheName();

    void takesADroppedStage();
    void takesTheFirstOfSeveral();
    void dropOfTheSameStageIsNoChange();
    void refusesOtherFiles_data();
    void refusesOtherFiles();
    void losesTheLookWhenTheDragLeaves();
    void losesTheLookWhenTheDragReachesTheCheckBox();
    void refusesADropThatHasNoNames();
    void takesNothingWhileDisabled();

    void widensTheCheckBoxWithTheScreen();

private:
    QString styleOfLabel() const { return m_label->styleSheet(); }
    std::unique_ptr<QMimeData> stages(const QStringList &names) const;

    QScopedPointer<TemporaryDataFolder> m_folder;
    QScopedPointer<ZvScheduleDefaultStageWidget> m_widget;
    QCheckBox *m_checkBox = nullptr;
    QLabel *m_label = nullptr;
    QScopedPointer<SignalLog> m_log;
};

void tst_ZvScheduleDefaultStageWidget::init()
{
    m_folder.reset(new TemporaryDataFolder);
    m_widget.reset(new ZvScheduleDefaultStageWidget);
    m_checkBox = m_widget->findChild<QCheckBox *>();
    m_label = m_widget->findChild<QLabel *>();
    QVERIFY(m_checkBox && m_label);
    m_log.reset(new SignalLog);
    m_log->watch(m_widget.data(), SIGNAL(stageNameChanged(QString)));
    m_log->watch(m_widget.data(), SIGNAL(stageNameChangedWithUndo(QString,QString)));
    m_widget->resize(500, 40);
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_widget.data()));
}

void tst_ZvScheduleDefaultStageWidget::cleanup()
{
    m_log.reset();
    m_widget.reset();
    m_folder.reset();
    ZvSystemInfo::setDpiRatioOverride(0);
}

std::unique_ptr<QMimeData> tst_ZvScheduleDefaultStageWidget::stages(const QStringList &names) const
{
    QStringList paths;
    for (const QString &name : names)
        paths.append(m_folder->stageFolder() + QLatin1Char('/') + name);
    return DragGesture::filesMimeData(paths);
}

void tst_ZvScheduleDefaultStageWidget::isEmptyAtFirst()
{
    QCOMPARE(m_widget->stageName(), QString());
    QVERIFY(!m_widget->isDefaultStageChecked());
    QCOMPARE(m_label->text(), emptyText);
    QCOMPARE(styleOfLabel(), baseStyle + unnamedStyle);
    QCOMPARE(m_checkBox->text(), QStringLiteral("Default Stage"));
    QCOMPARE(m_log->names(), QStringList());
}

void tst_ZvScheduleDefaultStageWidget::isLaidOut()
{
    auto *layout = qobject_cast<QHBoxLayout *>(m_widget->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(3, 3, 3, 3));
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->itemAt(0)->widget(), m_checkBox);
    QCOMPARE(layout->itemAt(1)->widget(), m_label);
    QCOMPARE(m_checkBox->styleSheet(), QStringLiteral("font-size: 9.0pt;"));
    QCOMPARE(m_label->minimumSize(), QSize(24, 24));
    QCOMPARE(m_label->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(m_label->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    QVERIFY(m_label->acceptDrops());
    QVERIFY(m_widget->acceptDrops());
}

void tst_ZvScheduleDefaultStageWidget::showsName()
{
    m_widget->setStageName(QStringLiteral("lobby/a.xml"));
    QCOMPARE(m_widget->stageName(), QStringLiteral("lobby/a.xml"));
    QVERIFY(m_widget->isDefaultStageChecked());
    QCOMPARE(m_label->text(), QStringLiteral("lobby/a.xml"));
    QCOMPARE(styleOfLabel(), baseStyle + namedStyle);
    QCOMPARE(m_log->names(), QStringList(QStringLiteral("stageNameChanged")));
    QCOMPARE(m_log->arguments(0), QVariantList({QStringLiteral("lobby/a.xml")}));
}

void tst_ZvScheduleDefaultStageWidget::clearsName()
{
    m_widget->setStageName(QStringLiteral("a.xml"));
    m_log->clear();
    m_widget->setStageName(QString());
    QVERIFY(!m_widget->isDefaultStageChecked());
    QCOMPARE(m_label->text(), emptyText);
    QCOMPARE(styleOfLabel(), baseStyle + unnamedStyle);
    QCOMPARE(m_log->names(), QStringList(QStringLiteral("stageNameChanged")));
    QCOMPARE(m_log->arguments(0), QVariantList({QString()}));
}

void tst_ZvScheduleDefaultStageWidget::reportsAChangeOnly()
{
    m_widget->setStageName(QLatin1String(""));
    QCOMPARE(m_log->names(), QStringList());
    m_widget->setStageName(QStringLiteral("a.xml"));
    m_widget->setStageName(QStringLiteral("a.xml"));
    QCOMPARE(m_log->count(QStringLiteral("stageNameChanged")), 1);
}

void tst_ZvScheduleDefaultStageWidget::comparesNamesWithCase()
{
    m_widget->setStageName(QStringLiteral("a.xml"));
    m_widget->setStageName(QStringLiteral("A.xml"));
    QCOMPARE(m_log->count(QStringLiteral("stageNameChanged")), 2);
}

void tst_ZvScheduleDefaultStageWidget::showsAnyNameAsItStands()
{
    const QString name = QStringLiteral("<b>a</b> & b.xml");
    m_widget->setStageName(name);
    QCOMPARE(m_label->text(), name);
    QCOMPARE(m_label->textFormat(), Qt::PlainText);
    m_widget->setStageName(QString(5000, QLatin1Char('x')));
    QVERIFY(m_widget->minimumSizeHint().width() < 500);
}

void tst_ZvScheduleDefaultStageWidget::setsNameWithUndo()
{
    QVERIFY(QMetaObject::invokeMethod(m_widget.data(), "setStageNameWithUndo",
                                      Q_ARG(QString, QStringLiteral("a.xml"))));
    QCOMPARE(m_log->names(), QStringList({QStringLiteral("stageNameChanged"),
                                          QStringLiteral("stageNameChangedWithUndo")}));
    QCOMPARE(m_log->arguments(1), QVariantList({QString(), QStringLiteral("a.xml")}));
    m_log->clear();
    m_widget->setStageNameWithUndo(QStringLiteral("a.xml"));
    QCOMPARE(m_log->names(), QStringList());
}

void tst_ZvScheduleDefaultStageWidget::tellsThatABoxCannotChooseAStage()
{
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Ok)
        .title(QStringLiteral("Information"))
        .text(QStringLiteral("If you set Default Stage, drop the stage into the right box, or "
                             "select the stage and from the context menu, choose Set As Default "
                             "Stage."))
        .icon(QMessageBox::Information)
        .buttons(QMessageBox::Ok);
    QTest::mouseClick(m_checkBox, Qt::LeftButton, Qt::NoModifier,
                      QPoint(8, m_checkBox->height() / 2));
    QVERIFY(answer.isDone());
    QVERIFY(!m_checkBox->isChecked());
    QCOMPARE(m_widget->stageName(), QString());
    QCOMPARE(m_log->names(), QStringList());
}

void tst_ZvScheduleDefaultStageWidget::standsItsDeathUnderTheMessage()
{
    MessageBoxAnswer answer;
    QTimer::singleShot(0, this, [this] { m_widget.reset(); });
    QMetaObject::invokeMethod(m_widget.data(), "onCheckBoxClicked", Q_ARG(bool, true));
    QVERIFY(!m_widget);
}

void tst_ZvScheduleDefaultStageWidget::uncheckingClearsTheName()
{
    MessageBoxAnswer noBox;
    m_widget->setStageName(QStringLiteral("a.xml"));
    m_log->clear();
    QTest::mouseClick(m_checkBox, Qt::LeftButton, Qt::NoModifier,
                      QPoint(8, m_checkBox->height() / 2));
    QCOMPARE(m_widget->stageName(), QString());
    QCOMPARE(m_log->names(), QStringList({QStringLiteral("stageNameChanged"),
                                          QStringLiteral("stageNameChangedWithUndo")}));
    QCOMPARE(m_log->arguments(1), QVariantList({QStringLiteral("a.xml"), QString()}));
}

void tst_ZvScheduleDefaultStageWidget::takesADroppedStage()
{
    DragGesture drag(stages({QStringLiteral("lobby/a.xml")}), Qt::CopyAction | Qt::LinkAction);
    QVERIFY(drag.enter(m_label, QPoint(20, 10)));
    QCOMPARE(styleOfLabel(), baseStyle + hoverStyle + unnamedStyle);
    QVERIFY(drag.mimeData()->hasFormat(ZvEditorCommon::MIME_TYPE_STAGE_NAME));
    QVERIFY(drag.move(QPoint(30, 10)));
    QVERIFY(drag.drop());
    QCOMPARE(m_widget->stageName(), QStringLiteral("lobby/a.xml"));
    QVERIFY(m_widget->isDefaultStageChecked());
    QCOMPARE(styleOfLabel(), baseStyle + namedStyle);
    QCOMPARE(m_log->names(), QStringList({QStringLiteral("stageNameChanged"),
                                          QStringLiteral("stageNameChangedWithUndo")}));
    QCOMPARE(m_log->arguments(1), QVariantList({QString(), QStringLiteral("lobby/a.xml")}));
}

void tst_ZvScheduleDefaultStageWidget::takesTheFirstOfSeveral()
{
    DragGesture drag(stages({QStringLiteral("b.zstg"), QStringLiteral("a.xml")}));
    QVERIFY(drag.enter(m_label, QPoint(20, 10)));
    QVERIFY(drag.drop());
    QCOMPARE(m_widget->stageName(), QStringLiteral("b.zstg"));
    QCOMPARE(m_log->count(QStringLiteral("stageNameChangedWithUndo")), 1);
}

void tst_ZvScheduleDefaultStageWidget::dropOfTheSameStageIsNoChange()
{
    m_widget->setStageName(QStringLiteral("a.xml"));
    m_log->clear();
    DragGesture drag(stages({QStringLiteral("a.xml")}));
    QVERIFY(drag.enter(m_label, QPoint(20, 10)));
    QCOMPARE(styleOfLabel(), baseStyle + hoverStyle + namedStyle);
    QVERIFY(drag.drop());
    QCOMPARE(m_log->names(), QStringList());
    QCOMPARE(styleOfLabel(), baseStyle + namedStyle);
}

void tst_ZvScheduleDefaultStageWidget::refusesOtherFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("other suffix") << QStringLiteral("stage/a.png");
    QTest::newRow("suffix in other case") << QStringLiteral("stage/a.XML");
    QTest::newRow("outside") << QStringLiteral("a.xml");
    QTest::newRow("beside") << QStringLiteral("stage2/a.xml");
}

void tst_ZvScheduleDefaultStageWidget::refusesOtherFiles()
{
    QFETCH(QString, file);
    m_widget->setStageName(QStringLiteral("old.xml"));
    m_log->clear();
    DragGesture drag(DragGesture::filesMimeData({m_folder->filePath(file)}));
    QVERIFY(!drag.enter(m_label, QPoint(20, 10)));
    QCOMPARE(styleOfLabel(), baseStyle + namedStyle);
    QVERIFY(!drag.drop());
    QCOMPARE(m_widget->stageName(), QStringLiteral("old.xml"));
    QCOMPARE(m_log->names(), QStringList());
}

void tst_ZvScheduleDefaultStageWidget::losesTheLookWhenTheDragLeaves()
{
    DragGesture drag(stages({QStringLiteral("a.xml")}));
    QVERIFY(drag.enter(m_label, QPoint(20, 10)));
    drag.leave();
    QCOMPARE(styleOfLabel(), baseStyle + unnamedStyle);
    QCOMPARE(m_widget->stageName(), QString());
}

void tst_ZvScheduleDefaultStageWidget::losesTheLookWhenTheDragReachesTheCheckBox()
{
    DragGesture drag(stages({QStringLiteral("a.xml")}));
    QVERIFY(drag.enter(m_label, QPoint(20, 10)));
    QMimeData *data = drag.mimeData();
    QDragEnterEvent overFrame(QPoint(5, 5), Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_widget.data(), &overFrame);
    QVERIFY(!overFrame.isAccepted());
    QCOMPARE(styleOfLabel(), baseStyle + unnamedStyle);
}

void tst_ZvScheduleDefaultStageWidget::refusesADropThatHasNoNames()
{
    DragGesture drag(stages({QStringLiteral("a.xml")}));
    QVERIFY(drag.enter(m_label, QPoint(20, 10)));
    drag.mimeData()->setData(ZvEditorCommon::MIME_TYPE_STAGE_NAME, QByteArray("%0D%0A"));
    QVERIFY(!drag.drop());
    QCOMPARE(styleOfLabel(), baseStyle + unnamedStyle);
    QCOMPARE(m_widget->stageName(), QString());
}

void tst_ZvScheduleDefaultStageWidget::takesNothingWhileDisabled()
{
    m_widget->setEnabled(false);
    DragGesture drag(stages({QStringLiteral("a.xml")}));
    QVERIFY(!drag.enter(m_label, QPoint(20, 10)));
    QCOMPARE(styleOfLabel(), baseStyle + unnamedStyle);
    QTest::mouseClick(m_checkBox, Qt::LeftButton);
    QVERIFY(!m_checkBox->isChecked());
}

void tst_ZvScheduleDefaultStageWidget::widensTheCheckBoxWithTheScreen()
{
    SignalLog log;
    log.watch(m_widget.data(), SIGNAL(dpiRatioChanged(double)));
    const int width = m_checkBox->fontMetrics().boundingRect(m_checkBox->text()).width();
    ZvSystemInfo::setDpiRatioOverride(1.75);
    m_widget->resize(501, 40);
    QCOMPARE(log.count(QStringLiteral("dpiRatioChanged")), 1);
    QCOMPARE(log.arguments(0), QVariantList({1.75}));
    QCOMPARE(m_checkBox->minimumWidth(), int((width - 12) * 1.75));
    m_widget->resize(502, 40);
    QCOMPARE(log.count(QStringLiteral("dpiRatioChanged")), 1);
    ZvSystemInfo::setDpiRatioOverride(1.0);
    m_widget->hide();
    m_widget->show();
    QCOMPARE(log.count(QStringLiteral("dpiRatioChanged")), 2);
    QCOMPARE(m_checkBox->minimumWidth(), width - 12);
}

QTEST_MAIN(tst_ZvScheduleDefaultStageWidget)
#include "tst_zvscheduledefaultstagewidget.moc"
