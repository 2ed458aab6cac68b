#include "exporter/WeekSheet.h"

#include "ScheduleNames.h"
#include "ZvChannel.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QLocale>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

namespace Zavo {

namespace {

// Lengths in points.
constexpr double pointsPerInch = 72.0;
constexpr double pageMarginMm = 10.0;
constexpr double titleHeight = 22.0;
constexpr double dayHeadHeight = 26.0;
constexpr double hourColumnWidth = 26.0;
constexpr double textInset = 2.0;
constexpr double titlePoints = 13.0;
constexpr double headPoints = 8.0;
constexpr double slotPoints = 6.5;
constexpr double slotLineSpacing = 1.12;
constexpr double listLineSpacing = 1.5;
constexpr double hairline = 0.4;
constexpr int hoursPerDay = 24;
constexpr int listColumns = 3;
constexpr int longestList = 3000;
constexpr int hues = 360;
constexpr int paleSaturation = 150;
constexpr int paleLightness = 218;

/// Equal stages have equal colours, on every sheet.
QColor colorOfStage(const QString &stage)
{
    return QColor::fromHsl(static_cast<int>(qHash(stage, 0) % hues), paleSaturation, paleLightness);
}

QString shortStageName(const QString &stage)
{
    const QString file = stage.section(QLatin1Char('/'), -1);
    return file.contains(QLatin1Char('.')) ? file.section(QLatin1Char('.'), 0, -2) : file;
}

QString timesOf(const ProgrammeSlot &slot)
{
    return ScheduleNames::timeText(slot.fromMs) + QChar(0x2013) +
           ScheduleNames::timeText(slot.toMs);
}

void drawLine(QPainter *painter, const QRectF &box, const QString &text, int flags)
{
    const QFontMetricsF metrics(painter->font(), painter->device());
    // Metrics count in dots of the device, the box in points.
    const double scale = painter->transform().m11();
    painter->drawText(box, flags | Qt::TextSingleLine,
                      metrics.elidedText(text, Qt::ElideMiddle, box.width() * scale));
}

// Behind letters that run to the left its parts would be drawn in the opposite order.
QString textOf(const QDate &date)
{
    constexpr QChar leftToRightMark(0x200E);
    return leftToRightMark + date.toString(Qt::ISODate);
}

} // namespace

WeekSheet::WeekSheet(const ZvChannel &channel, const QDate &date)
{
    const QLocale locale;
    const int daysBehind =
        (date.dayOfWeek() - static_cast<int>(locale.firstDayOfWeek()) + DaysPerWeek) % DaysPerWeek;
    const QDate first = date.addDays(-daysBehind);
    const QList<ZvSchedule> &schedules = channel.scheduleList();
    for (int i = 0; i < DaysPerWeek; ++i)
        m_days.append(DayProgramme::of(schedules, first.addDays(i)));
    m_title =
        tr("%1: %2 to %3").arg(channel.name(), textOf(first), textOf(m_days.constLast().date));
}

QByteArray WeekSheet::pdf()
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(m_title);
    writer.setCreator(QCoreApplication::applicationName());
    writer.setPageLayout({QPageSize(QPageSize::A4), QPageLayout::Landscape,
                          QMarginsF(pageMarginMm, pageMarginMm, pageMarginMm, pageMarginMm),
                          QPageLayout::Millimeter});
    const double dotsPerPoint = writer.resolution() / pointsPerInch;
    m_page = {0, 0, writer.width() / dotsPerPoint, writer.height() / dotsPerPoint};
    m_hours = m_page.adjusted(hourColumnWidth, titleHeight + dayHeadHeight, 0, -headPoints);
    QPainter painter;
    if (!painter.begin(&writer))
        return {};
    painter.scale(dotsPerPoint, dotsPerPoint);
    drawWeek(&painter);
    drawList(&painter, &writer);
    return painter.end() ? buffer.data() : QByteArray();
}

void WeekSheet::drawWeek(QPainter *painter)
{
    drawTitle(painter);
    drawHours(painter);
    for (int place = 0; place < DaysPerWeek; ++place)
        drawDay(painter, place);
}

void WeekSheet::drawTitle(QPainter *painter)
{
    painter->setPen(Qt::black);
    painter->setFont(font(titlePoints, true));
    drawLine(painter, {m_page.left(), m_page.top(), m_page.width(), titleHeight}, m_title,
             Qt::AlignLeft | Qt::AlignTop);
}

void WeekSheet::drawHours(QPainter *painter)
{
    painter->setFont(font(slotPoints));
    for (int hour = 0; hour <= hoursPerDay; ++hour) {
        const int ms = DayProgramme::DayMs / hoursPerDay * hour;
        const double y = m_hours.top() + heightOf(ms);
        painter->setPen(QPen(QColor(Qt::lightGray), hairline));
        painter->drawLine(QPointF(m_hours.left(), y), QPointF(m_hours.right(), y));
        painter->setPen(Qt::black);
        drawLine(painter,
                 {m_page.left(), y - headPoints, hourColumnWidth - textInset, 2 * headPoints},
                 ScheduleNames::timeText(ms), Qt::AlignRight | Qt::AlignVCenter);
    }
}

void WeekSheet::drawDay(QPainter *painter, int place)
{
    const DayProgramme &day = m_days.at(place);
    const QRectF column = columnOf(place);
    const QLocale locale;
    const QRectF head(column.left(), column.top() - dayHeadHeight, column.width(), dayHeadHeight);
    painter->setPen(Qt::black);
    painter->setFont(font(headPoints, true));
    drawLine(painter, head,
             locale.standaloneDayName(day.date.dayOfWeek(), QLocale::ShortFormat) +
                 QLatin1Char(' ') + textOf(day.date),
             Qt::AlignHCenter | Qt::AlignTop);
    painter->setFont(font(slotPoints));
    drawLine(painter, head.adjusted(0, dayHeadHeight / 2, 0, -textInset),
             day.schedule.isEmpty() ? tr("No schedule") : ScheduleNames::of(day.schedule),
             Qt::AlignHCenter | Qt::AlignTop);
    for (const ProgrammeSlot &slot : day.slotList)
        drawSlot(painter, column, slot, day.date);
    painter->setPen(QPen(QColor(Qt::darkGray), hairline));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(column);
}

void WeekSheet::drawSlot(QPainter *painter, const QRectF &column, const ProgrammeSlot &slot,
                         const QDate &date)
{
    const double top = column.top() + heightOf(slot.fromMs);
    const QRectF box(column.left(), top, column.width(), heightOf(slot.toMs - slot.fromMs));
    painter->setPen(QPen(QColor(Qt::darkGray), hairline));
    painter->setBrush(colorOfStage(slot.stage));
    painter->drawRect(box);
    painter->setPen(Qt::black);
    painter->setFont(font(slotPoints, false, slot.isDefaultStage));
    const double lineHeight = slotPoints * slotLineSpacing;
    if (box.height() < lineHeight) {
        if (m_shortSlots.size() < longestList)
            m_shortSlots.append(QStringLiteral("%1  %2  %3")
                                    .arg(date.toString(Qt::ISODate), timesOf(slot), slot.stage));
        else
            ++m_shortSlotsLeftOut;
        return;
    }
    const QRectF inner = box.adjusted(textInset, 0, -textInset, 0);
    const QString name = shortStageName(slot.stage);
    if (box.height() < 2 * lineHeight + textInset) {
        drawLine(painter, inner, timesOf(slot) + QStringLiteral("  ") + name,
                 Qt::AlignLeft | Qt::AlignVCenter);
        return;
    }
    const QRectF first(inner.left(), top + textInset / 2, inner.width(), lineHeight);
    drawLine(painter, first, name, Qt::AlignLeft | Qt::AlignVCenter);
    drawLine(painter, first.translated(0, lineHeight), timesOf(slot),
             Qt::AlignLeft | Qt::AlignVCenter);
}

void WeekSheet::drawList(QPainter *painter, QPdfWriter *writer)
{
    if (m_shortSlotsLeftOut > 0)
        m_shortSlots.append(tr("%n more", nullptr, m_shortSlotsLeftOut));
    const double lineHeight = slotPoints * listLineSpacing;
    const int rows = static_cast<int>((m_page.height() - 2 * titleHeight) / lineHeight);
    const double width = m_page.width() / listColumns;
    for (int i = 0; i < m_shortSlots.size(); ++i) {
        const int place = i % (rows * listColumns);
        if (place == 0) {
            writer->newPage();
            drawTitle(painter);
            painter->setFont(font(headPoints, true));
            drawLine(painter, {m_page.left(), titleHeight, m_page.width(), titleHeight},
                     tr("Too short to be named in the week"), Qt::AlignLeft | Qt::AlignTop);
            painter->setFont(font(slotPoints));
        }
        const int column = place / rows;
        drawLine(painter,
                 {m_page.left() + width * column,
                  m_page.top() + 2 * titleHeight + lineHeight * (place % rows),
                  width - 2 * textInset, lineHeight},
                 m_shortSlots.at(i), Qt::AlignLeft | Qt::AlignVCenter);
    }
}

QRectF WeekSheet::columnOf(int place) const
{
    const double width = m_hours.width() / DaysPerWeek;
    return {m_hours.left() + width * place, m_hours.top(), width, m_hours.height()};
}

double WeekSheet::heightOf(int ms) const
{
    return m_hours.height() * ms / DayProgramme::DayMs;
}

QFont WeekSheet::font(double points, bool bold, bool italic) const
{
    QFont result;
    // The painter counts in points, so that a pixel of the font is one.
    result.setPixelSize(qMax(1, qRound(points)));
    result.setBold(bold);
    result.setItalic(italic);
    return result;
}

} // namespace Zavo
