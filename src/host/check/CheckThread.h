#pragma once

#include "check/DataCheck.h"

#include <QThread>

namespace Zavo {

/// One check in a thread of its own.
class CheckThread final : public QThread
{
    Q_OBJECT

public:
    /// A check of the data folder of ZvEditorConfig as of today. To be called on the GUI thread.
    explicit CheckThread(QObject *parent = nullptr);

    /// Cancels the check and waits for the files that are being read.
    ~CheckThread() override;

    void cancel();
    bool isCancelled() const { return m_check.isCancelled(); }

    int done() const { return m_check.done(); }
    int total() const { return m_check.total(); }

    /// To be called once the thread has finished.
    const CheckReport &report() const { return m_report; }

protected:
    void run() override;

private:
    DataCheck m_check;
    CheckReport m_report;
};

} // namespace Zavo
