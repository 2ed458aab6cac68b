#pragma once

#include "upload/UploadSet.h"
#include "upload/UploadTarget.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace Zavo {

/// The arguments of rsync for each step of the upload of a set to a target.
class UploadArguments final
{
public:
    UploadArguments(const UploadTarget &target, const UploadSet &set);

    /// A listing of the target's folder.
    QStringList look() const;

    /// The whole set into a hidden folder at the target.
    QStringList assemble() const;

    /// The channel files at the target that differ from those of the set, into a folder here.
    QStringList fetchReplaced(const QString &folder) const;

    /// The stages in place, from the hidden folder. What is replaced goes to @p keptFolder at the
    /// target, unless that is empty.
    QStringList placeStages(const QString &keptFolder) const;

    /// Stages, channels and the mark in place, and away with what the set does not hold.
    QStringList placeAll(const QString &keptFolder) const;

    /// Away with the hidden folder.
    QStringList cleanUp() const;

    /// Names of what a listing has in the folder itself, as far as their kind, the first letter of
    /// a line, is among @p kinds.
    static QStringList namesInListing(const QByteArray &listing, const char *kinds);

private:
    QStringList place(const QString &keptFolder) const;
    QStringList end(const QStringList &paths) const;
    QStringList endWithoutSync(const QStringList &paths) const;
    QString stagingFolder() const;
    QString setFolder() const;

    const UploadTarget m_target;
    const UploadSet m_set;
};

} // namespace Zavo
