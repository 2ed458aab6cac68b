#pragma once

#include <QString>

/// The data folder that the user has chosen for all starts of the program. A folder on the command
/// line, or in the environment variable ZAVO_DATA_DIR, goes before it.
namespace Zavo::DataFolderChoice {

/// Empty if the user has made no choice.
QString stored();

/// An empty folder takes the choice back.
void store(const QString &folder);

/// Makes the choice the data folder of this process, unless the environment names another one.
void apply();

} // namespace Zavo::DataFolderChoice
