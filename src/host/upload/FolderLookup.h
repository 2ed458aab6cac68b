#pragma once

#include <QString>
#include <QThread>

namespace Zavo {

/// Finds out where a folder lies in truth, in a thread of its own: on a share that is lost this can
/// take minutes, which nobody can cut short. It deletes itself once it has finished, behind the
/// receivers of that signal.
class FolderLookup final : public QThread
{
    Q_OBJECT

public:
    explicit FolderLookup(const QString &folder);

    /// Without links; empty if there is no such folder. To be called once the thread has finished.
    QString canonicalPath() const { return m_canonicalPath; }

protected:
    void run() override;

private:
    const QString m_folder;
    QString m_canonicalPath;
};

} // namespace Zavo
