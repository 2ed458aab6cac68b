#include "TemporaryDataFolder.h"

#include "ZvEditorConfig.h"
#include "ZvEditorUserConfig.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QtTest>

namespace ZavoTest {

namespace {

void verify(bool succeeded, const char *what, const QString &path)
{
    if (!succeeded)
        QTest::qVerify(false, what, qPrintable(path), __FILE__, __LINE__);
}

} // namespace

TemporaryDataFolder::TemporaryDataFolder()
    : m_settings(std::make_unique<QSettings>(m_root.filePath(QStringLiteral("settings.ini")),
                                             QSettings::IniFormat))
{
    verify(m_root.isValid() && QDir().mkpath(path()), "temporary folder", m_root.errorString());
    Zavo::ZvEditorConfig::setDataDir(path());
    Zavo::ZvEditorUserConfig::setSettings(m_settings.get());
}

TemporaryDataFolder::~TemporaryDataFolder()
{
    Zavo::ZvEditorUserConfig::resetSettings();
    Zavo::ZvEditorConfig::setDataDir(QString());
}

QString TemporaryDataFolder::path() const
{
    return m_root.filePath(QStringLiteral("data"));
}

QString TemporaryDataFolder::filePath(const QString &relativePath) const
{
    return QDir(path()).filePath(relativePath);
}

QString TemporaryDataFolder::channelFolder() const
{
    return filePath(QStringLiteral("channel"));
}

QString TemporaryDataFolder::stageFolder() const
{
    return filePath(QStringLiteral("stage"));
}

QSettings *TemporaryDataFolder::settings() const
{
    return m_settings.get();
}

QStringList TemporaryDataFolder::names(const QString &relativeFolder) const
{
    const auto filter = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    return QDir(filePath(relativeFolder)).entryList(filter, QDir::Name);
}

QByteArray TemporaryDataFolder::read(const QString &relativePath) const
{
    QFile file(filePath(relativePath));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString TemporaryDataFolder::makeFolder(const QString &relativePath)
{
    const QString folder = filePath(relativePath);
    verify(QDir().mkpath(folder), "folder created", folder);
    return folder;
}

QString TemporaryDataFolder::write(const QString &relativePath, const QByteArray &content)
{
    QFile file(filePath(relativePath));
    QDir().mkpath(QFileInfo(file).absolutePath());
    const bool written = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    verify(written && file.flush(), "file written", file.fileName());
    return file.fileName();
}

QString TemporaryDataFolder::writeStage(const QString &name, const QString &text)
{
    const auto content = QStringLiteral(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<Stage version=\"1\" width=\"192\" height=\"108\" background=\"#204060\">\n"
        " <Text x=\"0\" y=\"0\" width=\"192\" height=\"108\" size=\"24\" color=\"#ffffff\""
        " align=\"center\">%1</Text>\n"
        "</Stage>\n");
    return write(QStringLiteral("stage/") + name, content.arg(text.toHtmlEscaped()).toUtf8());
}

void TemporaryDataFolder::copyFrom(const QString &sourceFolder)
{
    const QDir source(sourceFolder);
    verify(source.exists(), "folder to copy exists", sourceFolder);
    QDirIterator files(sourceFolder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString from = files.next();
        const QString to = filePath(source.relativeFilePath(from));
        QDir().mkpath(QFileInfo(to).absolutePath());
        verify(QFile::copy(from, to), "file copied", from);
        QFile::setPermissions(to, QFile::permissions(to) | QFile::WriteOwner);
    }
}

} // namespace ZavoTest
