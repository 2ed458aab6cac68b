#pragma once

#include "storage/FileSystemCalls.h"

#include <QThread>

namespace ZavoTest {

/// While it lives, a disk that takes its time to open a file.
class SlowDisk final : public Zavo::FileSystemCalls
{
public:
    SlowDisk() { setCurrent(this); }
    ~SlowDisk() override { setCurrent(nullptr); }
    Q_DISABLE_COPY(SlowDisk)

    int open(const char *path, int flags, mode_t mode) override
    {
        QThread::msleep(40);
        return FileSystemCalls::open(path, flags, mode);
    }
};

} // namespace ZavoTest
