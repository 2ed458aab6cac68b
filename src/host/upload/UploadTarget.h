#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace Zavo {

/// A place that channels are uploaded to, known by the address that the user wrote. A value.
///
/// An address is the absolute path of a folder; "rsync://[user@]host[:port]/module[/path]" for an
/// rsync daemon; "ssh://[user@]host[:port]/path" or "[user@]host:path" for a machine that is
/// reached by ssh. What could be taken for an option or a pattern by a program on the way is no
/// part of an address.
class UploadTarget final
{
    Q_DECLARE_TR_FUNCTIONS(Zavo::UploadTarget)

public:
    enum class Kind { None, Folder, Daemon, Shell };

    /// No target.
    UploadTarget() = default;
    explicit UploadTarget(const QString &address);

    bool isValid() const { return m_kind != Kind::None; }
    Kind kind() const { return m_kind; }

    /// As it was written, without blanks around it.
    QString address() const { return m_address; }

    /// A sentence about what is wrong with the address; empty if it is valid.
    QString problem() const { return m_problem; }

    /// What rsync takes as its destination: the target, or a folder below it.
    QString destination(const QString &folder = QString()) const;

    /// The options by which rsync reaches the target.
    QStringList options() const;

    /// True if this is the folder, or one of the two lies in the other.
    bool overlaps(const QString &folder) const;

    friend bool operator==(const UploadTarget &a, const UploadTarget &b)
    {
        return a.m_address == b.m_address;
    }

private:
    void readFolder();
    void readDaemon();
    void readShell();
    bool acceptRemotePath(const QString &path);

    QString m_address;
    QString m_problem;
    QString m_base; // what a folder is added to, ends with a separator
    int m_port = 0; // 0 for the one that is usual
    Kind m_kind = Kind::None;
};

} // namespace Zavo
