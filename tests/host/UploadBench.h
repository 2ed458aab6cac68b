#pragma once

#include "ChannelFiles.h"
#include "TemporaryDataFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRandomGenerator>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

namespace ZavoTest {

/// Every file below a folder with its contents, by its path from there; hidden folders in which
/// something is put together are left out.
inline QMap<QString, QByteArray> filesBelow(const QString &folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator each(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (each.hasNext()) {
        QFile file(each.next());
        const QString path = QDir(folder).relativeFilePath(file.fileName());
        if (!path.startsWith(QLatin1String(".zavo-")) && file.open(QIODevice::ReadOnly))
            files.insert(path, file.readAll());
    }
    return files;
}

/// Writes a file with its folders.
inline void writeFile(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

/// Bytes that nothing can make shorter.
inline QByteArray noise(int bytes)
{
    QByteArray result(bytes - bytes % 4, Qt::Uninitialized);
    QRandomGenerator generator(42);
    generator.fillRange(reinterpret_cast<quint32 *>(result.data()), result.size() / 4);
    return result;
}

/// A channel with one band and a default stage.
inline void writeChannel(TemporaryDataFolder &folder, int number, const QString &stage)
{
    QVERIFY(!writeChannelFile(folder, channelFileName(number),
                              {number,
                               number,
                               QStringLiteral("Ch.%1").arg(number),
                               {{QTime(8, 0), QTime(9, 0), stage}}})
                 .isEmpty());
}

/// A real rsync daemon on the loopback, with the modules "play", "readonly" and "secret" on one
/// folder.
class RsyncDaemon final
{
    Q_DISABLE_COPY(RsyncDaemon)

public:
    RsyncDaemon()
    {
        QTcpServer probe;
        probe.listen(QHostAddress::LocalHost);
        m_port = probe.serverPort();
        probe.close();
        const QString user = ::getuid() == 0 ? QStringLiteral("uid = 0\ngid = 0\n") : QString();
        const QString modules = QStringLiteral("use chroot = no\nlog file = %1/log\n%2"
                                               "[play]\npath = %1/play\nread only = no\n"
                                               "[readonly]\npath = %1/play\nread only = yes\n"
                                               "[secret]\npath = %1/play\nread only = no\n"
                                               "auth users = someone\nsecrets file = %1/secrets\n")
                                    .arg(m_root.path(), user);
        QDir(m_root.path()).mkdir(QStringLiteral("play"));
        writeFile(m_root.filePath(QStringLiteral("conf")), modules.toUtf8());
        writeFile(m_root.filePath(QStringLiteral("secrets")), "someone:word\n");
        QFile::setPermissions(m_root.filePath(QStringLiteral("secrets")),
                              QFile::ReadOwner | QFile::WriteOwner);
        m_process.setStandardInputFile(QProcess::nullDevice());
        m_process.start(QStringLiteral("rsync"),
                        {QStringLiteral("--daemon"), QStringLiteral("--no-detach"),
                         QStringLiteral("--address=127.0.0.1"),
                         QStringLiteral("--port=%1").arg(m_port),
                         QStringLiteral("--config=") + m_root.filePath(QStringLiteral("conf"))});
        for (int attempt = 0; attempt < 100 && !m_isReady; ++attempt) {
            QTcpSocket socket;
            socket.connectToHost(QHostAddress::LocalHost, m_port);
            m_isReady = socket.waitForConnected(100);
            if (!m_isReady)
                QTest::qWait(50);
        }
    }

    ~RsyncDaemon()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    bool isReady() const { return m_isReady; }
    quint16 port() const { return m_port; }
    QString folder() const { return m_root.filePath(QStringLiteral("play")); }

    QString address(const QString &module = QStringLiteral("play"), quint16 port = 0) const
    {
        return QStringLiteral("rsync://127.0.0.1:%1/%2").arg(port ? port : m_port).arg(module);
    }

private:
    QTemporaryDir m_root;
    QProcess m_process;
    quint16 m_port = 0;
    bool m_isReady = false;
};

/// A line to a server that breaks, or goes silent, once so much has been sent over it.
class FaultyLine final : public QObject
{
    Q_OBJECT

public:
    enum class Fault { Breaks, GoesSilent };

    FaultyLine(quint16 serverPort, qint64 bytesBefore, Fault fault)
        : m_serverPort(serverPort)
        , m_bytesLeft(bytesBefore)
        , m_fault(fault)
    {
        m_server.listen(QHostAddress::LocalHost);
        connect(&m_server, SIGNAL(newConnection()), this, SLOT(accept()));
    }

    quint16 port() const { return m_server.serverPort(); }
    bool isFaulty() const { return m_bytesLeft <= 0; }

    /// From now on all goes through.
    void mend() { m_bytesLeft = Q_INT64_C(1) << 30; }

private Q_SLOTS:
    void accept()
    {
        QTcpSocket *const client = m_server.nextPendingConnection();
        auto *const server = new QTcpSocket(client);
        server->connectToHost(QHostAddress::LocalHost, m_serverPort);
        connect(client, &QTcpSocket::readyRead, server, [=] { passOn(client, server); });
        connect(server, &QTcpSocket::connected, client, [=] { passOn(client, server); });
        connect(server, &QTcpSocket::readyRead, client, [=] { client->write(server->readAll()); });
        connect(client, &QTcpSocket::disconnected, server, [=] { server->disconnectFromHost(); });
        connect(server, &QTcpSocket::disconnected, client, [=] { client->disconnectFromHost(); });
    }

private:
    void passOn(QTcpSocket *client, QTcpSocket *server)
    {
        if (server->state() != QTcpSocket::ConnectedState || isFaulty())
            return;
        const QByteArray bytes = client->read(m_bytesLeft);
        m_bytesLeft -= bytes.size();
        server->write(bytes);
        if (!isFaulty() || m_fault == Fault::GoesSilent)
            return;
        server->abort();
        client->abort();
    }

    QTcpServer m_server;
    quint16 m_serverPort;
    qint64 m_bytesLeft;
    Fault m_fault;
};

} // namespace ZavoTest
