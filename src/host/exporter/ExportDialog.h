#pragma once

#include "exporter/ExportRequest.h"

#include <QDialog>

#include <memory>

class QComboBox;
class QDateEdit;
class QFormLayout;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;

namespace Zavo {

class ExportJob;

/// Exports a channel: what as, for which dates, where to. The window stays usable meanwhile.
class ExportDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit ExportDialog(QWidget *parent = nullptr);

    /// Ends an export that runs.
    ~ExportDialog() override;

    /// Shows the dialog in front for the channel of that file. While an export runs, its channel
    /// stays.
    void showChannel(const QString &channelFile);

    bool isExporting() const { return m_job != nullptr; }

Q_SIGNALS:
    /// An export has ended, well or not, and the dialog tells how.
    void exported();

protected:
    /// An export that no one waits for any more ends.
    void hideEvent(QHideEvent *event) override;

private Q_SLOTS:
    void onFormatChanged();
    void onFirstDateChanged(const QDate &date);
    void browse();
    void startExport();
    void showBusy();
    void onFinished();

private:
    void makeWidgets();
    void makeFields(QFormLayout *form);
    void makeTarget(QFormLayout *form);
    void makeDates(QFormLayout *form);
    ExportRequest request() const;
    bool mayReplace(const QString &target);
    void proposeTarget();
    void setRunning(bool running);
    void tell(const QString &text, bool isProblem);

    QString m_channelFile;
    QString m_proposedTarget;
    std::unique_ptr<ExportJob> m_job;
    QLabel *m_channel = nullptr;
    QComboBox *m_format = nullptr;
    QLabel *m_firstDateLabel = nullptr;
    QDateEdit *m_firstDate = nullptr;
    QLabel *m_lastDateLabel = nullptr;
    QDateEdit *m_lastDate = nullptr;
    QLineEdit *m_target = nullptr;
    QPushButton *m_browseButton = nullptr;
    QPushButton *m_exportButton = nullptr;
    QProgressBar *m_progress = nullptr;
    QLabel *m_message = nullptr;
};

} // namespace Zavo
