#pragma once

#include "UploadBench.h"

#include <QStandardPaths>

#include <pwd.h>
#include <unistd.h>

namespace ZavoTest {

/// A real ssh server on the loopback with a key of its own, and a user who may log in by another.
/// While it lives, the program ssh in PATH is one that knows both keys and nothing of the machine's
/// own settings.
class SshServer final
{
    Q_DISABLE_COPY(SshServer)

public:
    /// @p settings are lines for its configuration.
    explicit SshServer(const QString &settings = {})
        : m_path(qgetenv("PATH"))
    {
        if (!isInstalled())
            return;
        QTcpServer probe;
        probe.listen(QHostAddress::LocalHost);
        m_port = probe.serverPort();
        probe.close();
        for (const auto *key : {"host_key", "user_key", "other_key"})
            makeKey(QLatin1String(key));
        putFile(QStringLiteral("authorized_keys"), read(QStringLiteral("user_key.pub")));
        putFile(QStringLiteral("known_hosts"), "zavo-test " + read(QStringLiteral("host_key.pub")));
        putFile(QStringLiteral("none"), {});
        useKeys(QStringLiteral("user_key"), QStringLiteral("known_hosts"));
        startServer(settings);
    }

    ~SshServer()
    {
        qputenv("PATH", m_path);
        m_process.terminate();
        if (!m_process.waitForFinished(2000))
            m_process.kill();
        m_process.waitForFinished();
    }

    static bool isInstalled() { return !program().isEmpty(); }

    bool isReady() const { return m_isReady; }
    quint16 port() const { return m_port; }

    QString address(const QString &folder, quint16 port = 0) const
    {
        return QStringLiteral("ssh://%1@127.0.0.1:%2%3")
            .arg(QString::fromLocal8Bit(::getpwuid(::getuid())->pw_name))
            .arg(port ? port : m_port)
            .arg(folder);
    }

    void forgetTheUser() { useKeys(QStringLiteral("other_key"), QStringLiteral("known_hosts")); }
    void forgetTheHost() { useKeys(QStringLiteral("user_key"), QStringLiteral("none")); }

private:
    static QString program()
    {
        return QStandardPaths::findExecutable(
            QStringLiteral("sshd"), {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/bin")});
    }

    void makeKey(const QString &name)
    {
        QCOMPARE(QProcess::execute(QStringLiteral("ssh-keygen"),
                                   {QStringLiteral("-q"), QStringLiteral("-t"),
                                    QStringLiteral("ed25519"), QStringLiteral("-N"), QString(),
                                    QStringLiteral("-f"), m_root.filePath(name)}),
                 0);
    }

    QByteArray read(const QString &name) const
    {
        QFile file(m_root.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void putFile(const QString &name, const QByteArray &bytes)
    {
        writeFile(m_root.filePath(name), bytes);
    }

    // The server is the same under any port, so that a faulty line can lead to it.
    void useKeys(const QString &userKey, const QString &knownHosts)
    {
        putFile(QStringLiteral("ssh_config"),
                QStringLiteral("Host *\nHostKeyAlias zavo-test\nIdentitiesOnly yes\n"
                               "IdentityFile %1/%2\nUserKnownHostsFile %1/%3\n"
                               "GlobalKnownHostsFile %1/none\nStrictHostKeyChecking yes\n")
                    .arg(m_root.path(), userKey, knownHosts)
                    .toUtf8());
        static const QString ssh = QStandardPaths::findExecutable(QStringLiteral("ssh"));
        putFile(QStringLiteral("bin/ssh"),
                QStringLiteral("#!/bin/sh\nexec %1 -F %2/ssh_config \"$@\"\n")
                    .arg(ssh, m_root.path())
                    .toUtf8());
        QFile::setPermissions(m_root.filePath(QStringLiteral("bin/ssh")),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("PATH", QFile::encodeName(m_root.filePath(QStringLiteral("bin"))) + ':' + m_path);
    }

    void startServer(const QString &settings)
    {
        // Root's server wants this folder, which a machine without the service does not have.
        if (::getuid() == 0)
            QDir().mkpath(QStringLiteral("/run/sshd"));
        putFile(QStringLiteral("sshd_config"),
                QStringLiteral("ListenAddress 127.0.0.1:%1\nHostKey %2/host_key\nPidFile none\n"
                               "AuthorizedKeysFile %2/authorized_keys\nStrictModes no\nUsePAM no\n"
                               "PasswordAuthentication no\nKbdInteractiveAuthentication no\n"
                               "PermitRootLogin prohibit-password\nMaxStartups 100\n%3\n")
                    .arg(m_port)
                    .arg(m_root.path(), settings)
                    .toUtf8());
        m_process.setStandardInputFile(QProcess::nullDevice());
        m_process.setStandardErrorFile(m_root.filePath(QStringLiteral("log")));
        m_process.start(program(),
                        {QStringLiteral("-D"), QStringLiteral("-e"), QStringLiteral("-f"),
                         m_root.filePath(QStringLiteral("sshd_config"))});
        for (int attempt = 0; attempt < 100 && !m_isReady; ++attempt) {
            QTcpSocket socket;
            socket.connectToHost(QHostAddress::LocalHost, m_port);
            m_isReady = socket.waitForConnected(100) && socket.waitForReadyRead(5000);
            if (!m_isReady)
                QTest::qWait(50);
        }
    }

    const QByteArray m_path;
    QTemporaryDir m_root;
    QProcess m_process;
    quint16 m_port = 0;
    bool m_isReady = false;
};

} // namespace ZavoTest
