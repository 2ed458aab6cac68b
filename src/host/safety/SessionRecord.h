#pragma once

#include <QCoreApplication>
#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>

namespace Zavo {

/// A file in the data folder that exists while an editor has it open, and tells which channels have
/// edits that are not saved. One that is found at a start was left by a session that did not end.
class SessionRecord final
{
    Q_DECLARE_TR_FUNCTIONS(Zavo::SessionRecord)

public:
    struct Session
    {
        QDateTime started;
        QStringList unsavedChannels; ///< names
    };

    explicit SessionRecord(const QString &dataDir);

    QString filePath() const { return m_filePath; }

    /// The session that was left behind, if any. A file that makes no sense is a session of which
    /// nothing is known.
    std::optional<Session> read() const;

    /// What to tell the user about a session that did not end.
    static QString sentence(const Session &session);

    bool write(const Session &session) const;
    void remove() const;

private:
    QString m_filePath;
};

} // namespace Zavo
