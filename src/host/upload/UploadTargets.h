#pragma once

#include "upload/UploadTarget.h"

#include <QList>

namespace Zavo {

/// One line of the user's list of targets.
struct ListedTarget
{
    UploadTarget target;
    bool selected = true; ///< goes along with the next upload
};

/// The user's list of targets, kept in the user settings.
namespace UploadTargets {

/// What is stored, in its order; what is no target, or comes twice, is passed over.
QList<ListedTarget> load();

void store(const QList<ListedTarget> &targets);

} // namespace UploadTargets
} // namespace Zavo
