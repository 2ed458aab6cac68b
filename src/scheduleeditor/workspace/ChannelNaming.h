#pragma once

#include <QCoreApplication>
#include <QStringList>

namespace Zavo {

/// Which names the user may give a channel.
class ChannelNaming final
{
    Q_DECLARE_TR_FUNCTIONS(Zavo::ChannelNaming)

public:
    ChannelNaming() = delete;

    /// Why a channel cannot be called @p name beside channels of the names @p otherNames; empty if
    /// it can. Names that differ in case are different.
    static QString refusal(const QString &name, const QStringList &otherNames);
};

} // namespace Zavo
