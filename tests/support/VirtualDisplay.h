#pragma once

#include <QProcess>
#include <QString>

namespace ZavoTest {

/// A display of our own, without a screen.
class VirtualDisplay final
{
public:
    VirtualDisplay()
    {
        // Without that option it begins anew, and drops who is about to come, when the last leaves.
        m_server.start(QStringLiteral("Xvfb"),
                       {QStringLiteral("-displayfd"), QStringLiteral("1"),
                        QStringLiteral("-screen"), QStringLiteral("0"),
                        QStringLiteral("1280x1024x24"), QStringLiteral("-noreset"),
                        QStringLiteral("-nolisten"), QStringLiteral("tcp")});
        while (!m_server.canReadLine() && m_server.waitForReadyRead(longestStartMs)) {
        }
        const QString number = QString::fromLatin1(m_server.readLine()).trimmed();
        if (!number.isEmpty())
            m_name = QLatin1Char(':') + number;
    }
    Q_DISABLE_COPY(VirtualDisplay)
    ~VirtualDisplay()
    {
        m_server.terminate();
        m_server.waitForFinished();
    }

    /// Empty if there is no display.
    QString name() const { return m_name; }

private:
    static constexpr int longestStartMs = 60000;

    QProcess m_server;
    QString m_name;
};

} // namespace ZavoTest
