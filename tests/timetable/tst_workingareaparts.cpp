#include "DragGesture.h"
#include "WorkingAreaFixture.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QStatusBar>
#include <QToolButton>
#include <QtTest>

#include <algorithm>
#include <memory>

using namespace Zavo;
using ZavoTest::defaultInfo;
using ZavoTest::DragGesture;
using ZavoTest::scheduleOf;
using ZavoTest::WorkingAreaFixture;
using ZavoTest::yOf;

namespace {

const QString noTime = QStringLiteral("--:--:--");

/// The children of a layout from first to last; null for a space.
QList<QWidget *> widgetsOf(const QLayout *layout)
{
    QList<QWidget *> widgets;
    for (int i = 0; i < layout->count(); ++i)
        widgets.append(layout->itemAt(i)->widget());
    return widgets;
}

QString textOf(const QWidget *label)
{
    return qobject_cast<const QLabel *>(label) ? qobject_cast<const QLabel *>(label)->text()
                                               : QString();
}

} // namespace

/// What stands above and below the time table of a page.
class tst_WorkingAreaParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_page = std::make_unique<WorkingAreaFixture>(QList<ZvSchedule>{scheduleOf(defaultInfo)});
    }
    void cleanup() { m_page.reset(); }

    void headerHoldsTitleOfferAndDefaultStage();
    void offerStandsCloseToTheTitle();
    void statusBarHoldsScaleAndTime();
    void timeUnderTheCursorKeepsItsWidth();
    void showsTheTimeUnderADrag();

private:
    QList<QWidget *> statusParts() const;
    QLabel *timeLabel() const;

    std::unique_ptr<WorkingAreaFixture> m_page;
};

/// The parts of the status bar from left to right.
QList<QWidget *> tst_WorkingAreaParts::statusParts() const
{
    QList<QWidget *> parts;
    const QObjectList children = m_page->child<QStatusBar>()->children();
    for (QObject *child : children) {
        auto *part = qobject_cast<QWidget *>(child);
        if (part && part->isVisible())
            parts.append(part);
    }
    std::sort(parts.begin(), parts.end(),
              [](const QWidget *part, const QWidget *other) { return part->x() < other->x(); });
    return parts;
}

QLabel *tst_WorkingAreaParts::timeLabel() const
{
    return qobject_cast<QLabel *>(widgetsOf(statusParts().last()->layout()).last());
}

void tst_WorkingAreaParts::headerHoldsTitleOfferAndDefaultStage()
{
    const auto *header = m_page->child<QWidget>(QStringLiteral("HeaderWidget"));
    QCOMPARE(header->layout()->contentsMargins(), QMargins());
    const QList<QWidget *> widgets = widgetsOf(header->layout());
    QCOMPARE(widgets.size(), 4);
    QCOMPARE(textOf(widgets.at(0)), QStringLiteral("Schedule of ..."));
    QCOMPARE(widgets.at(1), m_page->child<QToolButton>()->parentWidget());
    QVERIFY(!widgets.at(2));
    QCOMPARE(header->layout()->itemAt(2)->sizeHint(), QSize(9, 9));
    QCOMPARE(header->layout()->itemAt(2)->expandingDirections(), Qt::Horizontal);
    QCOMPARE(widgets.at(3), m_page->box());
}

void tst_WorkingAreaParts::offerStandsCloseToTheTitle()
{
    const auto *button = m_page->child<QToolButton>();
    const QLayout *layout = button->parentWidget()->layout();
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 0);
    const QList<QWidget *> widgets = widgetsOf(layout);
    QCOMPARE(widgets.size(), 2);
    QCOMPARE(textOf(widgets.first()), QStringLiteral(" - None. "));
    QCOMPARE(widgets.last(), button);
    QVERIFY(button->styleSheet().startsWith(
        QLatin1String("QToolButton{border-style: none;margin: 1px;color: black;}")));
}

void tst_WorkingAreaParts::statusBarHoldsScaleAndTime()
{
    const QList<QWidget *> parts = statusParts();
    QCOMPARE(parts.size(), 3);
    for (const QWidget *part : {parts.first(), parts.last()}) {
        QCOMPARE(part->styleSheet(), QStringLiteral("QLabel {font-size: 9.0pt;}"));
        QCOMPARE(part->layout()->contentsMargins(), QMargins());
        QCOMPARE(part->width(), part->sizeHint().width());
    }
    const QList<QWidget *> scale = widgetsOf(parts.first()->layout());
    QCOMPARE(textOf(scale.first()), QStringLiteral("Scale"));
    QCOMPARE(scale.last(), m_page->child<QComboBox>());
    QVERIFY(parts.at(1)->children().isEmpty());
    const QList<QWidget *> time = widgetsOf(parts.last()->layout());
    QCOMPARE(textOf(time.first()), QStringLiteral("Cursor Position Time:"));
    QCOMPARE(textOf(time.last()), noTime);
}

void tst_WorkingAreaParts::timeUnderTheCursorKeepsItsWidth()
{
    const QFont font = timeLabel()->font();
    QCOMPARE(font.family(), QStringLiteral("Monospace"));
    QCOMPARE(font.styleHint(), QFont::TypeWriter);
    QCOMPARE(font.styleStrategy(), QFont::PreferDefault);
    QCOMPARE(font.pointSizeF(), 9.0);
}

void tst_WorkingAreaParts::showsTheTimeUnderADrag()
{
    m_page->area()->switchToDefaultSchedule();
    const QPointF place(180.0, yOf(QStringLiteral("08:00:00")));
    m_page->look(QStringLiteral("08:00:00"));
    DragGesture drag(DragGesture::filesMimeData(
        {m_page->folder().write(QStringLiteral("stage/a.xml"), "<stage/>")}));
    QVERIFY(drag.enter(m_page->view(), place));
    QVERIFY(drag.move(place));
    QCOMPARE(timeLabel()->text(), noTime);
    WorkingAreaFixture::settle();
    QCOMPARE(timeLabel()->text(), QStringLiteral("08:00:00"));
    drag.leave();
}

QTEST_MAIN(tst_WorkingAreaParts)
#include "tst_workingareaparts.moc"
