#include "check/CheckThread.h"

#include "ZvConfig.h"
#include "ZvEditorConfig.h"

namespace Zavo {

CheckThread::CheckThread(QObject *parent)
    : QThread(parent)
    , m_check(ZvEditorConfig::dataDir(), QDate::currentDate(),
              ZvEditorConfig::getConfig()->removingDuration())
{
}

CheckThread::~CheckThread()
{
    cancel();
    wait();
}

void CheckThread::cancel()
{
    m_check.cancel();
}

void CheckThread::run()
{
    m_report = m_check.run();
}

} // namespace Zavo
