#include "storage/BoundedFile.h"

#include "storage/FileSystemCalls.h"
#include "storage/SystemCall.h"

#include <QFile>

#include <fcntl.h>

namespace Zavo {

namespace {
constexpr int SmallestChunkBytes = 4096;

bool readAll(int file, int maximumBytes, FileSystemCalls &calls, QByteArray *bytes)
{
    struct stat status = {};
    if (calls.fstat(file, &status) != 0 || !S_ISREG(status.st_mode) ||
        status.st_size > maximumBytes)
        return false;
    // One byte more than there should be shows the end of the file, or that it is growing.
    QByteArray result(qMax(static_cast<int>(status.st_size) + 1, SmallestChunkBytes),
                      Qt::Uninitialized);
    int done = 0;
    while (true) {
        if (done == result.size())
            result.resize(
                static_cast<int>(qMin<qint64>(qint64(done) * 2, qint64(maximumBytes) + 1)));
        const ssize_t count = retried([&] {
            return calls.read(file, result.data() + done,
                              static_cast<size_t>(result.size() - done));
        });
        if (count < 0)
            return false;
        if (count == 0)
            break;
        done += static_cast<int>(count);
        if (done > maximumBytes)
            return false;
    }
    result.truncate(done);
    *bytes = result;
    return true;
}
} // namespace

bool BoundedFile::read(const QString &filePath, int maximumBytes, QByteArray *bytes)
{
    if (filePath.isEmpty() || filePath.contains(QChar::Null))
        return false;
    FileSystemCalls &calls = FileSystemCalls::current();
    const QByteArray name = QFile::encodeName(filePath);
    const int file = retried([&] {
        return calls.open(name.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0);
    });
    if (file < 0)
        return false;
    const bool ok = readAll(file, maximumBytes, calls, bytes);
    calls.close(file);
    return ok;
}

} // namespace Zavo
