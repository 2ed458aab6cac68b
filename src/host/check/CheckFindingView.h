#pragma once

class QTreeView;
class QWidget;

namespace Zavo {

class CheckFindingModel;

/// A list of the findings of @p model, owned by @p parent.
QTreeView *createFindingView(CheckFindingModel *model, QWidget *parent);

} // namespace Zavo
