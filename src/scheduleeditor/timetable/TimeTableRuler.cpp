#include "timetable/TimeTableRuler.h"

#include "timetable/TimeAxis.h"

#include <QLocale>

namespace Zavo {

namespace {

constexpr double pixelsBetweenLines = 30.0;
constexpr double leastScaleOfPartLabels = 2.0;
constexpr double secondsPerUnit = 60.0;
constexpr double xOfHourLabel = 0.0;
constexpr double xOfPartLabel = 1.0;

TimeTableRulerLine lineAt(double y, QTime time, bool isLast)
{
    TimeTableRulerLine line;
    line.y = y;
    line.time = time;
    line.isLast = isLast && time.minute() == 0;
    if (time.minute() == 0) {
        // The line half a minute behind noon is drawn over that of noon, so it has to be blue too.
        const bool isHalfDay = time.hour() % 12 == 0;
        line.kind =
            isHalfDay || line.isLast ? TimeTableRulerLine::HalfDay : TimeTableRulerLine::Hour;
    }
    return line;
}

} // namespace

TimeTableRuler::TimeTableRuler(double verticalScale)
    : m_verticalScale(verticalScale)
{
    layLines();
    layLabels();
}

void TimeTableRuler::layLines()
{
    const double step = pixelsBetweenLines / m_verticalScale;
    const int stepSeconds = static_cast<int>(step * secondsPerUnit);
    if (stepSeconds <= 0)
        return;
    m_lines.reserve(static_cast<int>(TimeAxis::dayLength / step) + 1);

    QTime time(0, 0);
    QTime previousTime = time;
    for (double y = TimeAxis::dayTop; y <= TimeAxis::dayBottom; y += step) {
        m_lines.append(lineAt(y, time, previousTime > time));
        if (m_lines.last().isLast)
            break;
        previousTime = time;
        time = time.addSecs(stepSeconds);
    }
}

QString TimeTableRuler::labelOf(const TimeTableRulerLine &line) const
{
    if (line.isLast)
        return QStringLiteral("24:00");
    if (line.kind == TimeTableRulerLine::Part && m_verticalScale < leastScaleOfPartLabels)
        return {};
    // In the digits of 24:00, whatever those of the system are.
    return QLocale::c().toString(line.time, QStringLiteral("hh:mm"));
}

void TimeTableRuler::layLabels()
{
    QString lastText;
    for (const TimeTableRulerLine &line : qAsConst(m_lines)) {
        const QString text = labelOf(line);
        if (text.isEmpty() || text == lastText)
            continue;
        const double x = line.kind == TimeTableRulerLine::Part ? xOfPartLabel : xOfHourLabel;
        m_labels.append({QPointF(x, line.y), text});
        lastText = text;
    }
}

} // namespace Zavo
