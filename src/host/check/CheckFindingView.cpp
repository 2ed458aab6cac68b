#include "check/CheckFindingView.h"

#include "ZvSystemInfo.h"
#include "check/CheckFindingModel.h"
#include "check/CheckNames.h"

#include <QCoreApplication>
#include <QTreeView>

namespace Zavo {

namespace {
constexpr int columnWidths[] = {110, 130, 130};
} // namespace

QTreeView *createFindingView(CheckFindingModel *model, QWidget *parent)
{
    auto *const view = new QTreeView(parent);
    view->setObjectName(QLatin1String(CheckNames::findings));
    view->setAccessibleName(QCoreApplication::translate("Zavo::CheckDialog", "Findings"));
    view->setModel(model);
    view->setRootIsDecorated(false);
    view->setUniformRowHeights(true);
    view->setAlternatingRowColors(true);
    view->setAllColumnsShowFocus(true);
    for (int column = 0; column < CheckFindingModel::FindingText; ++column)
        view->setColumnWidth(column,
                             qRound(columnWidths[column] * ZvSystemInfo::getDpiRatio(parent)));
    return view;
}

} // namespace Zavo
