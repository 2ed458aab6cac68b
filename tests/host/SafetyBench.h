#pragma once

#include "safety/BackupStore.h"

#include "ChannelFiles.h"
#include "TemporaryDataFolder.h"

#include <QFile>
#include <QObject>

#include <memory>

namespace ZavoTest {

/// A data folder with the copies of its channels, new for each test.
class SafetyBench : public QObject
{
    Q_OBJECT

protected:
    QString channelPath(int number = 0) const
    {
        return m_folder->channelFolder() + QLatin1Char('/') + channelFileName(number);
    }

    /// As another program writes: into the file, in place.
    QString write(const QByteArray &content, int number = 0)
    {
        return m_folder->write(QStringLiteral("channel/") + channelFileName(number), content);
    }

    /// The newest first.
    QList<QByteArray> kept(int number = 0) const
    {
        QList<QByteArray> contents;
        const QList<Zavo::BackupState> states = m_store->states(channelFileName(number));
        for (const Zavo::BackupState &state : states) {
            QFile file(state.path);
            contents.append(file.open(QIODevice::ReadOnly) ? file.readAll()
                                                           : QByteArray("unreadable"));
        }
        return contents;
    }

    std::unique_ptr<TemporaryDataFolder> m_folder;
    std::unique_ptr<Zavo::BackupStore> m_store;

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<TemporaryDataFolder>();
        m_folder->makeFolder(QStringLiteral("channel"));
        m_store = std::make_unique<Zavo::BackupStore>(m_folder->path());
    }

    void cleanup()
    {
        m_store.reset();
        m_folder.reset();
    }
};

} // namespace ZavoTest
