#pragma once

#include "FaultHouse.h"

#include <cstdio>
#include <random>

namespace ZavoTest {

/// Somebody who renames channels and saves them, one or all, without a pause and at random, and
/// notes each name before it is saved and again once it is.
class RandomWork final
{
public:
    /// The folder is laid out with the sample, and its window is open on it.
    RandomWork(FaultHouse *house, uid_t user, unsigned seed, std::FILE *log);

    /// Kills the program in the middle so many times, and looks at the folder each time: every
    /// channel has the name that was saved last, or one that was being saved.
    void killed(int rounds);

    /// Two programs that know nothing of each other work on the folder, so many times. Each name
    /// that one of them has saved is in a channel file or among the safety copies afterwards.
    void twoPrograms(int rounds);

    int failures() const { return m_failures; }

private:
    void killOnce(int round);
    void meetOnce(int round);
    void look(const QStringList &lines, int round);
    void fail(int round, const QString &what);

    FaultHouse *m_house = nullptr;
    uid_t m_user = 0;
    std::mt19937 m_random;
    std::FILE *m_log = nullptr;
    QMap<int, QString> m_saved; // name of each channel
    int m_failures = 0;
};

} // namespace ZavoTest
