#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace ZavoTest {

/// What the process has read until now, in bytes, of files and of anything else; -1 where the
/// system does not tell. Growth of it tells what was read, where a clock would tell what else the
/// machine did.
inline qint64 bytesRead()
{
    QFile counts(QStringLiteral("/proc/self/io"));
    if (!counts.open(QIODevice::ReadOnly))
        return -1;
    return counts.readLine().mid(int(qstrlen("rchar: "))).trimmed().toLongLong();
}

} // namespace ZavoTest
