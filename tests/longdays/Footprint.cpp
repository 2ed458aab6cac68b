#include "Footprint.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFile>

#include <malloc.h>
#include <unistd.h>

namespace ZavoTest {

namespace {

constexpr double BytesPerMiB = 1024.0 * 1024.0;

double residentBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0.0;
    return file.readAll().split(' ').value(1).toDouble() *
           static_cast<double>(sysconf(_SC_PAGESIZE));
}

int descriptorCount()
{
    const QDir folder(QStringLiteral("/proc/self/fd"));
    // One of them is the reading of this very folder.
    return static_cast<int>(
               folder.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size()) -
           1;
}

} // namespace

Footprint Footprint::now()
{
    const auto heap = mallinfo2();
    return {static_cast<double>(heap.uordblks + heap.hblkhd) / BytesPerMiB,
            residentBytes() / BytesPerMiB, descriptorCount()};
}

Footprint Footprint::atRest()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    malloc_trim(0);
    return now();
}

} // namespace ZavoTest
