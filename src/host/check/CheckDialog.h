#pragma once

#include <QDialog>
#include <QTimer>

#include <memory>

class QLabel;
class QProgressBar;
class QPushButton;

namespace Zavo {

class CheckFindingModel;
class CheckThread;

/// Checks the data folder and shows what was found. It does not block the window, so that what was
/// found can be put right beside it, and checked again.
class CheckDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit CheckDialog(QWidget *parent = nullptr);

    /// Ends a check that runs.
    ~CheckDialog() override;

    bool isChecking() const { return m_thread != nullptr; }

public Q_SLOTS:
    /// Shows the dialog in front and begins a check, unless one runs.
    void check();

Q_SIGNALS:
    /// A check has ended and is on show.
    void checked();

protected:
    /// A check that no one looks at any more ends.
    void hideEvent(QHideEvent *event) override;

private Q_SLOTS:
    void start();
    void cancel();
    void copyFindings();
    void showProgress();
    void onFinished();

private:
    void makeWidgets();
    void makeButtons();
    void showRunning(bool running);

    std::unique_ptr<CheckThread> m_thread;
    bool m_startsAgain = false; // once the cancelled check has ended
    CheckFindingModel *m_model = nullptr;
    QLabel *m_summary = nullptr;
    QProgressBar *m_progress = nullptr;
    QPushButton *m_againButton = nullptr;
    QPushButton *m_cancelButton = nullptr;
    QPushButton *m_copyButton = nullptr;
    QTimer m_progressTimer;
};

} // namespace Zavo
