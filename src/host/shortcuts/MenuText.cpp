#include "shortcuts/MenuText.h"

#include <QRegularExpression>
#include <QString>

namespace Zavo {

QString MenuText::plain(const QString &text)
{
    static const QRegularExpression trailingMnemonic(QStringLiteral("\\s*\\(&[^&]\\)"));
    QString plain = text;
    plain.remove(trailingMnemonic).remove(QLatin1Char('&'));
    if (plain.endsWith(QLatin1String("...")))
        plain.chop(3);
    return plain;
}

} // namespace Zavo
