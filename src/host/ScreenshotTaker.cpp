#include "ScreenshotTaker.h"

#include "HostNames.h"

#include <QDir>
#include <QImageWriter>
#include <QPixmap>
#include <QSaveFile>
#include <QTabWidget>
#include <QWidget>

namespace Zavo {

namespace {

constexpr int lookIntervalMs = 20;
// The longest of the editor's own start-up timers runs for 100 ms.
constexpr int settlingMs = 300;

} // namespace

ScreenshotTaker::ScreenshotTaker(QWidget *window, const QString &filePath, QObject *parent)
    : QObject(parent)
    , m_window(window)
    , m_filePath(filePath)
{
    m_timer.setInterval(lookIntervalMs);
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(look()));
}

void ScreenshotTaker::start(int timeoutMs)
{
    m_timeoutMs = timeoutMs;
    m_waited.start();
    m_timer.start();
}

void ScreenshotTaker::look()
{
    if (!hasTabs()) {
        m_settled.invalidate();
        if (m_waited.hasExpired(m_timeoutMs))
            finish(false, tr("No channel was shown, so there is no picture."));
    } else if (!m_settled.isValid()) {
        m_settled.start();
    } else if (m_settled.hasExpired(settlingMs)) {
        take();
    }
}

bool ScreenshotTaker::hasTabs() const
{
    const auto *const tabs = m_window->findChild<QTabWidget *>(QLatin1String(HostNames::tabWidget));
    return tabs && tabs->count() > 0;
}

void ScreenshotTaker::take()
{
    QSaveFile file(m_filePath);
    const bool opened = file.open(QIODevice::WriteOnly);
    QImageWriter writer(&file, "png");
    if (opened && writer.write(m_window->grab().toImage()) && file.commit()) {
        finish(true, QString());
        return;
    }
    const QString reason = opened && writer.error() != QImageWriter::DeviceError
                               ? writer.errorString()
                               : file.errorString();
    finish(false, tr("The picture \"%1\" cannot be written: %2.")
                      .arg(QDir::toNativeSeparators(m_filePath), reason));
}

void ScreenshotTaker::finish(bool written, const QString &message)
{
    m_timer.stop();
    Q_EMIT done(written, message);
}

} // namespace Zavo
