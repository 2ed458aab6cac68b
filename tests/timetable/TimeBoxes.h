#pragma once

#include "timetable/ZvTimeSpinBox.h"
#include "timetable/ZvTimeSpinWidget.h"

#include <QLabel>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>
#include <QtTest>

namespace ZavoTest {

/// The three boxes of a time editor, as a person sees and uses them.
class TimeBoxes
{
public:
    explicit TimeBoxes(const Zavo::ZvTimeSpinWidget *editor)
        : m_boxes(editor->findChildren<ZvTimeSpinBox *>())
    {
    }

    ZvTimeSpinBox *hour() const { return m_boxes.at(0); }
    ZvTimeSpinBox *minute() const { return m_boxes.at(1); }
    ZvTimeSpinBox *second() const { return m_boxes.at(2); }
    ZvTimeSpinBox *box(int index) const { return m_boxes.at(index); }

    /// "h:m:s" as it is shown.
    QString text() const
    {
        QStringList texts;
        for (const ZvTimeSpinBox *one : m_boxes)
            texts.append(one->text());
        return texts.join(QLatin1Char(':'));
    }

    /// Replaces the content of a box by @p number, key by key, and finishes it.
    static void type(ZvTimeSpinBox *box, const char *number)
    {
        box->selectAll();
        QTest::keyClicks(box, QLatin1String(number));
        QTest::keyClick(box, Qt::Key_Return);
    }

    /// @p notches up, or down if negative.
    static void turnWheel(ZvTimeSpinBox *box, int notches)
    {
        const QPointF middle = box->rect().center();
        for (int i = 0; i < qAbs(notches); ++i) {
            QWheelEvent event(middle, box->mapToGlobal(middle.toPoint()), QPoint(),
                              QPoint(0, notches > 0 ? 120 : -120), Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(box, &event);
        }
    }

    /// A click on the upper or lower arrow of the box.
    static void clickArrow(ZvTimeSpinBox *box, bool up)
    {
        QStyleOptionSpinBox option;
        option.initFrom(box);
        option.subControls = QStyle::SC_All;
        option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
        const QRect arrow = box->style()->subControlRect(
            QStyle::CC_SpinBox, &option, up ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown, box);
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, arrow.center());
    }

private:
    QList<ZvTimeSpinBox *> m_boxes;
};

} // namespace ZavoTest
