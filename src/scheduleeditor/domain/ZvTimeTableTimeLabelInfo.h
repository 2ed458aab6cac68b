#pragma once

#include <QList>
#include <QMetaType>
#include <QPointF>
#include <QString>

namespace Zavo {

/// A label of the ruler: x is 0.0 on the hour and 1.0 elsewhere, y is that of the ruler line.
class ZvTimeTableTimeLabelInfo
{
public:
    ZvTimeTableTimeLabelInfo() = default;
    ZvTimeTableTimeLabelInfo(const QPointF &pos, const QString &text)
        : m_pos(pos)
        , m_text(text)
    {
    }

    QPointF pos() const { return m_pos; }
    QString text() const { return m_text; }

    bool operator==(const ZvTimeTableTimeLabelInfo &other) const
    {
        return m_pos == other.m_pos && m_text == other.m_text;
    }
    bool operator!=(const ZvTimeTableTimeLabelInfo &other) const { return !(*this == other); }

private:
    QPointF m_pos;
    QString m_text;
};

} // namespace Zavo

Q_DECLARE_METATYPE(Zavo::ZvTimeTableTimeLabelInfo)
Q_DECLARE_METATYPE(QList<Zavo::ZvTimeTableTimeLabelInfo>)
