#pragma once

#include <QByteArray>

namespace ZavoTest {

/// Which call on a file goes wrong, and how.
struct FaultPlan
{
    static constexpr int Kill = 0;
    static constexpr int Nothing = -1;
    enum class Thread { Gui, Others };

    QByteArray folder;   ///< only files below it count
    int error = Nothing; ///< an errno, Kill (the program is killed instead of the call) or Nothing
    int number = 1;      ///< the first call that goes wrong, counted from 1
    bool lasts = false;  ///< all calls after it go wrong, too
    Thread thread = Thread::Gui;
    unsigned longestPauseUs = 0; ///< before every call of any thread, so that programs meet
};

/// The calls on files of this program and of the libraries it uses. They are the system's own, but
/// for those that a plan names; a write that goes wrong has written half of its bytes by then.
///
/// What was seen is shared with the processes that are forked afterwards, so that it outlives them.
namespace FaultyFiles {

/// Before the first fork.
void share();

/// From now on the plan holds, for the calls of this thread or of all others.
void begin(const FaultPlan &plan);
void end();

/// Since begin().
int calls();
bool haveStruck();

/// Name of the call that went wrong first.
QByteArray struckCall();

} // namespace FaultyFiles
} // namespace ZavoTest
