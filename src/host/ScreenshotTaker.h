#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

class QWidget;

namespace Zavo {

/// Writes a picture of the window to a file, once its tabs are there and have settled.
class ScreenshotTaker final : public QObject
{
    Q_OBJECT

public:
    /// @p window must outlive this object.
    ScreenshotTaker(QWidget *window, const QString &filePath, QObject *parent = nullptr);

    /// Begins to wait for the tabs, for up to @p timeoutMs.
    void start(int timeoutMs = 60000);

Q_SIGNALS:
    /// The picture was written, or not: then @p message says why. Emitted once.
    void done(bool written, const QString &message);

private Q_SLOTS:
    void look();

private:
    bool hasTabs() const;
    void take();
    void finish(bool written, const QString &message);

    QWidget *m_window = nullptr;
    QString m_filePath;
    QTimer m_timer;
    QElapsedTimer m_waited;
    QElapsedTimer m_settled;
    int m_timeoutMs = 0;
};

} // namespace Zavo
