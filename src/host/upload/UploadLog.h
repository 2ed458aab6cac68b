#pragma once

#include <QFile>
#include <QString>
#include <QStringList>

namespace Zavo {

/// The log of one upload, a text that grows line by line in the folder in which the editor looks
/// for it. The editor opens the log with the lowest name, so there is one of the name that the
/// editor looks for; older ones lie beside it under names that begin with their time.
class UploadLog final
{
public:
    /// @p folder exists, if it could be made.
    explicit UploadLog(const QString &folder);

    /// Puts the log of the upload before aside and begins a new one. False if it cannot be written.
    bool begin();

    /// Writes a line with the time of day before it.
    void write(const QString &line);

    /// Writes lines that belong to the one before.
    void writeDetails(const QStringList &lines);

    /// False once something could not be written.
    bool isWhole() const { return m_isWhole; }

    QString filePath() const { return m_file.fileName(); }

private:
    void putAside();
    void removeOldest() const;
    void append(const QString &text);

    const QString m_folder;
    QFile m_file;
    bool m_isWhole = true;
};

} // namespace Zavo
