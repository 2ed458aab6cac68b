#pragma once

#include "exporter/ExportRequest.h"

#include <QThread>

#include <atomic>

namespace Zavo {

class ZvChannel;

/// One export in a thread of its own. The target is the old file or the new one, whole, at any
/// moment.
class ExportJob final : public QThread
{
    Q_OBJECT

public:
    explicit ExportJob(const ExportRequest &request, QObject *parent = nullptr);

    /// Cancels, and waits for the file that is being read or written.
    ~ExportJob() override;

    void cancel() { m_cancelled = true; }

    const ExportRequest &request() const { return m_request; }

    /// To be called once the thread has finished.
    const ExportResult &result() const { return m_result; }

    /// Why nothing can be exported by this request, in a sentence; empty if it seems possible.
    static QString problemOf(const ExportRequest &request);

protected:
    void run() override;

private:
    ExportContent makeContent(const ZvChannel &channel, const QByteArray &bytes) const;
    QString writeProblem(qint64 bytes) const;

    const ExportRequest m_request;
    ExportResult m_result;
    std::atomic<bool> m_cancelled{false};
};

} // namespace Zavo
