#pragma once

#include "../timetable/BandText.h"

#include "ZvSchedule.h"
#include "ZvTime.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QStringList>

namespace ZavoTest {

inline const QByteArray xmlHead = QByteArrayLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");

/// All fields of a schedule as text, for comparisons that print.
inline QString textOf(const Zavo::ZvSchedule &schedule)
{
    return QStringLiteral("type %1, day %2, date %3, default '%4', [%5]")
        .arg(QString::number(schedule.type()), QString::number(schedule.dayOfWeek()),
             schedule.date().toString(Qt::ISODate), schedule.defaultStage(),
             textOf(schedule.timeList()).join(QStringLiteral("; ")));
}

inline QStringList textOf(const QList<Zavo::ZvSchedule> &schedules)
{
    QStringList texts;
    for (const Zavo::ZvSchedule &schedule : schedules)
        texts.append(textOf(schedule));
    return texts;
}

/// Puts @p payload on the clipboard under @p mimeType, as another program would.
inline void putOnClipboard(const QString &mimeType, const QByteArray &payload)
{
    auto *data = new QMimeData;
    data->setData(mimeType, payload);
    QGuiApplication::clipboard()->setMimeData(data);
}

} // namespace ZavoTest
