#pragma once

namespace ZavoTest::MonkeyClock {

/// From here on the time of the calling thread passes only while that thread waits, and then at
/// once, as soon as nothing is left to do for any other thread. So waiting takes no time, and what
/// happens at which moment does not depend on the machine. It begins on a day that is always the
/// same, also for the other threads, whose time goes on as it does.
///
/// To be called once, by the thread of the windows, before there is an application.
void start();

} // namespace ZavoTest::MonkeyClock
