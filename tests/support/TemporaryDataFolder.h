#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

class QSettings;

namespace ZavoTest {

/// The data folder and the user settings of one test. While it lives, ZvEditorConfig::dataDir() is
/// its path and ZvEditorUserConfig::settings() its own, at first empty, INI file beside the folder.
/// When it dies its files go, and the program's own choice of both holds again.
class TemporaryDataFolder final
{
    Q_DISABLE_COPY(TemporaryDataFolder)

public:
    TemporaryDataFolder();
    ~TemporaryDataFolder();

    /// Absolute path of the folder, without a separator at its end.
    QString path() const;

    /// Absolute path of @p relativePath in the folder; the file need not exist.
    QString filePath(const QString &relativePath) const;

    /// Absolute path of "channel" below the folder. It is not created by this.
    QString channelFolder() const;

    /// Absolute path of "stage" below the folder. It is not created by this.
    QString stageFolder() const;

    /// What ZvEditorUserConfig::settings() gives; never null.
    QSettings *settings() const;

    /// Names of the files (hidden ones too) and folders in @p relativeFolder, sorted by byte order.
    QStringList names(const QString &relativeFolder = QString()) const;

    /// The bytes of a file; empty if it cannot be read.
    QByteArray read(const QString &relativePath) const;

    /// Creates a folder with all its parents and returns its absolute path.
    QString makeFolder(const QString &relativePath);

    /// Writes a file, creating its folder, and returns its absolute path. A failure fails the test.
    QString write(const QString &relativePath, const QByteArray &content);

    /// Writes a stage of one colour and one text below "stage" and returns its absolute path.
    /// @p name is relative to that folder and ends with ".xml".
    QString writeStage(const QString &name, const QString &text = QStringLiteral("Stage"));

    /// Copies the files below @p sourceFolder, with their folders, into this folder.
    void copyFrom(const QString &sourceFolder);

private:
    QTemporaryDir m_root;
    std::unique_ptr<QSettings> m_settings;
};

} // namespace ZavoTest
