#include "workspace/ChannelNaming.h"

#include <QRegularExpression>

namespace Zavo {

QString ChannelNaming::refusal(const QString &name, const QStringList &otherNames)
{
    static const QRegularExpression forbidden(QStringLiteral("[<>:\"/\\\\|?*]"));
    if (name.contains(forbidden)) {
        return tr("The following characters are not there not be able to use.\n\n  < > : \" / "
                  "\\ | ? \n\nYou have to specify another name.");
    }
    if (otherNames.contains(name)) {
        return tr("New name \"%1\" is already used by other channel.\nYou have to specify another "
                  "name.")
            .arg(name);
    }
    return {};
}

} // namespace Zavo
