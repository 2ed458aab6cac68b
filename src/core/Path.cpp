#include "Path.h"

namespace Zavo {

QString Path::combine(const QString &folder, const QString &name)
{
    if (folder.isEmpty())
        return name;
    if (name.isEmpty())
        return folder;
    const QLatin1Char separator('/');
    const bool folderEnds = folder.endsWith(separator);
    const bool nameBegins = name.startsWith(separator);
    if (folderEnds && nameBegins)
        return folder + name.mid(1);
    if (folderEnds || nameBegins)
        return folder + name;
    return folder + separator + name;
}

} // namespace Zavo
