#pragma once

#include "ZvCoreExport.h"

#include <QByteArray>
#include <QList>

namespace Zavo {

/// The text of an INI file, of which the keys of the group General are read and set while every
/// other line stays as it is.
class ZVCORE_EXPORT IniText
{
public:
    IniText() = default;
    explicit IniText(const QByteArray &bytes);

    /// Null if the key is not there.
    QByteArray value(const QByteArray &key) const;

    void setValue(const QByteArray &key, const QByteArray &value);

    QByteArray toBytes() const;

private:
    int lineOf(const QByteArray &key) const;

    QList<QByteArray> m_lines;
    int m_generalEnd = -1; // the line behind the last one of the group, -1 if there is no group
};

} // namespace Zavo
